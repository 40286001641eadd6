#pragma once

#include "features/CameraLink.h"
#include "features/Reading.h"
#include "features/ZebFeatureWrapper.h"

#include <QStringList>

#include <memory>

/// Reads of the feature that a look-up found, of which the camera's link hears. Without a feature
/// there is nothing in its answers.
class FeatureReader
{
public:
    enum Part {
        Value = 1,
        Range = 2,
        Increment = 4,
        Access = 8,
        Whole = Value | Range | Increment | Access
    };
    using TextGetter = ZebErrorType (ZebFeatureWrapper::*)(std::string&);
    using FlagGetter = ZebErrorType (ZebFeatureWrapper::*)(bool&);

    /// With a missing @p feature, @p isKnown tells that the camera has none by that name.
    FeatureReader(ZebFeatureWrapperPtr feature, const QString& name,
                  std::shared_ptr<CameraLink> link, bool isKnown);

    explicit operator bool() const { return m_feature != nullptr; }
    ZebFeatureWrapper* operator->() const { return m_feature.get(); }
    const ZebFeatureWrapperPtr& feature() const { return m_feature; }
    bool isKnown() const { return m_isKnown; }

    // From the SDK's memory; empty, or the unknown type, when it fails.
    ZebFeatureDataType dataType();
    QString text(TextGetter getter) const;
    QStringList entries() const;

    // From the camera. Each is empty for a type that it does not fit.
    /// Of an integer or a float, or of a boolean as 0 or 1.
    std::optional<double> value() { return number(Value).value; }
    std::optional<QString> textValue();
    std::optional<bool> flag(FlagGetter getter);
    bool isWritable() { return flag(&ZebFeatureWrapper::IsWritable).value_or(false); }
    // With a set of Part. Booleans are numbers by their value and access, 0 or 1.
    Reading<double> number(int parts = Whole);
    Reading<double> fieldNumber(int parts = Whole);
    Reading<std::int64_t> integer(int parts = Whole);
    Reading<double> floating(int parts = Whole);
    Reading<bool> boolean();
    Reading<QString> textReading();
    /// Asks for the value, of whatever type; false when nothing was asked.
    bool askValue();

private:
    template <typename Call> bool ask(Call&& call);
    template <typename Type> std::optional<Type> valueOf();
    template <typename Number> Reading<Number> typed(int parts);
    template <typename Type> Reading<Type> readingOf(std::optional<Type> value, int parts);
    template <typename Number> bool readLimits(Reading<Number>& reading, int parts);
    template <typename Type> bool isGivenUp(const Reading<Type>& reading, int parts) const;
    template <typename Type> Reading<Type> nothing() const;

    ZebFeatureWrapperPtr m_feature;
    QString m_name;
    std::shared_ptr<CameraLink> m_link;
    std::optional<ZebFeatureDataType> m_type;
    bool m_isKnown;
};
