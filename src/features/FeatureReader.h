#pragma once

#include "features/CameraLink.h"
#include "features/Reading.h"
#include "features/ZebFeatureWrapper.h"

#include <QStringList>

#include <memory>

/// Reads of the feature that a look-up found, if any, of which the camera's link hears.
class FeatureReader
{
public:
    enum Part {
        Value = 1,
        Range = 2,
        Increment = 4,
        Access = 8,
        Whole = Value | Range | Increment | Access,
        Readability = 16,
        Stepping = 32
    };
    using TextGetter = ZebErrorType (ZebFeatureWrapper::*)(std::string&);

    /// With a missing @p feature, @p isKnown tells that the camera has none by that name.
    FeatureReader(ZebFeatureWrapperPtr feature, const QString& name,
                  std::shared_ptr<CameraLink> link, bool isKnown = true);

    explicit operator bool() const { return m_feature != nullptr; }
    ZebFeatureWrapper* operator->() const { return m_feature.get(); }
    const QString& name() const { return m_name; }
    bool isKnown() const { return m_isKnown; }

    // From the SDK's memory; empty, or the unknown type, when it fails.
    ZebFeatureDataType dataType();
    QString text(TextGetter getter) const;
    QStringList entries() const;

    // From the camera, Whole or a set of parts. A value that fails slowly ends the reading.
    /// Of an integer, a double or a bool as the camera has it, of a QString for any type of
    /// feature; otherwise empty.
    template <typename Type> Reading<Type> read(int parts = Whole);
    /// Integers, floats and, by their value and access alone, booleans as 0 or 1.
    Reading<double> number(int parts = Whole);
    /// As it fits an input field: the maximum of an integer lies on a whole multiple of its
    /// increment, counted from 0 as writes are; a float without an increment gets 0.01.
    Reading<double> fieldNumber(int parts = Whole);
    std::optional<double> value() { return number(Value).value; }
    std::optional<QString> textValue() { return read<QString>(Value).value; }
    /// Access, readability or stepping.
    std::optional<bool> flag(Part part);
    bool isWritable() { return flag(Access).value_or(false); }

    // Only with a feature:
    template <typename Value> ZebErrorType write(const Value& value)
    {
        return m_link->written(m_feature->SetValue(value));
    }
    ZebErrorType run() { return m_link->written(m_feature->RunCommand()); }

private:
    template <typename Answer, typename Call> std::optional<Answer> ask(Part part, Call&& call);
    template <typename Type> bool isOf();
    template <typename Type> std::optional<Type> valueOf();
    template <typename Number> bool readLimits(Reading<Number>& reading, int parts);

    ZebFeatureWrapperPtr m_feature;
    QString m_name;
    std::shared_ptr<CameraLink> m_link;
    std::optional<ZebFeatureDataType> m_type;
    bool m_isKnown;
};
