#pragma once

#include "features/FeatureReader.h"
#include "features/SdkValues.h"
#include "features/ZebFeatureWrapper.h"

#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/// Typed access to the features of one camera by name, compared byte by byte; the first feature of
/// a name wins. Alternative names are tried in order.
///
/// Nothing throws. What is missing or cannot be read is -1 for numbers, else false, empty, unknown.
class FeatureManager
{
public:
    using Wrappers = QSharedPointer<QVector<ZebFeatureWrapperPtr>>;

    /// A wrapper for each of a camera's features, in their order.
    static Wrappers wrap(const QVector<ZebCPP::FeaturePtr>& features);

    /// Managers of one camera share its link.
    explicit FeatureManager(const Wrappers& features,
                            std::shared_ptr<CameraLink> link = std::make_shared<CameraLink>());
    virtual ~FeatureManager();

    FeatureManager(const FeatureManager&) = delete;
    FeatureManager& operator=(const FeatureManager&) = delete;

    /// The value as a number, by the feature's data type; booleans are 0 or 1.
    virtual double GetValue(const QString& name) { return GetValue(name, {}); }
    virtual double GetValue(const QString& name, const QString& alternative)
    {
        return GetValue(name, alternative, {});
    }
    virtual double GetValue(const QString& name, const QString& alternative1,
                            const QString& alternative2);
    virtual QString GetStringValue(const QString& name) { return GetStringValue(name, {}); }
    virtual QString GetStringValue(const QString& name, const QString& alternative)
    {
        return Read(name, alternative).textValue().value_or(QString());
    }
    virtual bool IsWritable(const QString& name) { return IsWritable(name, {}); }
    virtual bool IsWritable(const QString& name, const QString& alternative)
    {
        return IsWritable(name, alternative, {});
    }
    virtual bool IsWritable(const QString& name, const QString& alternative1,
                            const QString& alternative2)
    {
        return Read(name, alternative1, alternative2).isWritable();
    }
    virtual bool IsReadable(const QString& name)
    {
        return Read(name).flag(FeatureReader::Readability).value_or(false);
    }
    /// -1 for a feature that is no number.
    virtual double GetIncrement(const QString& name) { return GetIncrement(name, {}); }
    virtual double GetIncrement(const QString& name, const QString& alternative);
    /// The camera's own name of the first candidate that exists.
    virtual QString GetExistingName(const QStringList& candidates)
    {
        return readFirst(candidates).text(&ZebFeatureWrapper::GetName);
    }
    virtual QString GetDisplayName(const QString& name) { return GetDisplayName(name, {}); }
    virtual QString GetDisplayName(const QString& name, const QString& alternative)
    {
        return GetDisplayName(name, alternative, {});
    }
    virtual QString GetDisplayName(const QString& name, const QString& alternative1,
                                   const QString& alternative2)
    {
        return Read(name, alternative1, alternative2).text(&ZebFeatureWrapper::GetDisplayName);
    }
    virtual QString GetDisplayName(const QStringList& candidates)
    {
        return readFirst(candidates).text(&ZebFeatureWrapper::GetDisplayName);
    }

    /// Value, writability, range and increment as the camera reports them. A missing feature
    /// leaves the outputs untouched, one that is no number sets the numbers to -1.
    virtual double GetValueState(const QString& name, bool& writable, double& minimum,
                                 double& maximum, double& increment)
    {
        return GetValueState(name, {}, writable, minimum, maximum, increment);
    }
    virtual double GetValueState(const QString& name, const QString& alternative, bool& writable,
                                 double& minimum, double& maximum, double& increment)
    {
        return GetValueState(name, alternative, {}, writable, minimum, maximum, increment);
    }
    virtual double GetValueState(const QString& name, const QString& alternative1,
                                 const QString& alternative2, bool& writable, double& minimum,
                                 double& maximum, double& increment);

    /// Fit for an input field: the maximum of an integer lies on a whole multiple of its increment
    /// (counted from 0, as SetValue() writes it), and a float without an increment gets 0.01.
    virtual double GetValueRange(const QString& name, double& minimum, double& maximum,
                                 double& increment)
    {
        return GetValueRange(name, {}, minimum, maximum, increment);
    }
    virtual double GetValueRange(const QString& name, const QString& alternative, double& minimum,
                                 double& maximum, double& increment)
    {
        return GetValueRange(name, alternative, {}, minimum, maximum, increment);
    }
    virtual double GetValueRange(const QString& name, const QString& alternative1,
                                 const QString& alternative2, double& minimum, double& maximum,
                                 double& increment);

    /// The range as the camera reports it, without the alignment of GetValueRange().
    virtual double GetValueLimits(const QString& name, double& minimum, double& maximum)
    {
        return GetValueLimits(name, {}, minimum, maximum);
    }
    virtual double GetValueLimits(const QString& name, const QString& alternative, double& minimum,
                                  double& maximum)
    {
        return GetValueLimits(name, alternative, {}, minimum, maximum);
    }
    virtual double GetValueLimits(const QString& name, const QString& alternative1,
                                  const QString& alternative2, double& minimum, double& maximum);

    /// The text of a feature that can be written; empty for any other.
    virtual QString GetWritableStringValue(const QString& name);
    /// All entries, those that the camera does not offer at present included.
    virtual QStringList GetEnumEntries(const QString& name) { return GetEnumEntries(name, {}); }
    virtual QStringList GetEnumEntries(const QString& name, const QString& alternative)
    {
        return Read(name, alternative).entries();
    }
    virtual bool HasFeature(const QString& name, const QString& alternative1,
                            const QString& alternative2)
    {
        return bool(Read(name, alternative1, alternative2));
    }
    virtual bool HasFeature(const QString& name, const QString& alternative)
    {
        return HasFeature(name, alternative, {});
    }
    virtual bool HasFeature(const QString& name) { return HasFeature(name, {}); }
    virtual bool IsFeatureWritable(const QString& name, const QString& alternative1,
                                   const QString& alternative2)
    {
        return IsWritable(name, alternative1, alternative2);
    }
    virtual bool IsFeatureWritable(const QString& name, const QString& alternative)
    {
        return IsFeatureWritable(name, alternative, {});
    }
    virtual bool IsFeatureWritable(const QString& name) { return IsFeatureWritable(name, {}); }
    virtual bool IsFloatFeature(const QString& name) { return IsFloatFeature(name, {}); }
    virtual bool IsFloatFeature(const QString& name, const QString& alternative)
    {
        return IsFloatFeature(name, alternative, {});
    }
    virtual bool IsFloatFeature(const QString& name, const QString& alternative1,
                                const QString& alternative2)
    {
        return Read(name, alternative1, alternative2).dataType() == Sdk::floatType;
    }

    /// Writes a text or an enumeration entry and answers what the camera then reports under the
    /// primary name, also when an alternative was written. Empty when none exists.
    virtual QString SetStringValue(const QString& name, const QString& value)
    {
        return SetStringValue(name, {}, value);
    }
    virtual QString SetStringValue(const QString& name, const QString& alternative,
                                   const QString& value)
    {
        return SetStringValue(name, alternative, {}, value);
    }
    virtual QString SetStringValue(const QString& name, const QString& alternative1,
                                   const QString& alternative2, const QString& value);

    /// Writes a number, clamped to the range, and answers the value in effect afterwards; integers
    /// and their maximum are first aligned to the increment, counted from 0. A boolean is set by
    /// any value above 0. Without the feature, or when it is no number, the answer is @p value.
    virtual double SetValue(const QString& name, double value) { return SetValue(name, {}, value); }
    virtual double SetValue(const QString& name, const QString& alternative, double value)
    {
        return SetValue(name, alternative, {}, value);
    }
    virtual double SetValue(const QString& name, const QString& alternative1,
                            const QString& alternative2, double value);

    virtual bool RunCommand(const QString& name);
    virtual QString GetCategory(const QString& name)
    {
        return Read(name).text(&ZebFeatureWrapper::GetCategory);
    }
    virtual bool IsValueAvailable(const QString& name, const QString& value);
    /// The names of the features whose values depend on this selector's.
    virtual QStringList GetSelectedFeatureNames(const QString& name);
    virtual ZebFeatureDataType GetDataType(const QString& name);
    virtual QString GetRepresentation(const QString& name);
    /// Rich text for tool tips: description, type, range, increment and category.
    virtual QString GetInformation(const QString& name);
    virtual QStringList GetFeatureNames();

    /// Any kind of value, or runs a command. True when the camera took it.
    virtual bool SetVariantValue(const QString& name, const QVariant& value);

    virtual FeatureReader Read(const QString& name, const QString& alternative1 = {},
                               const QString& alternative2 = {}) const;
    /// All features of those names, in the camera's order, by one look-up.
    virtual QVector<FeatureReader> FindAll(const QStringList& names) const;

    const Wrappers& features() const { return m_features; }
    const std::shared_ptr<CameraLink>& link() const { return m_link; }

private:
    /// Goes over the features and their names until @p visit answers true. False when a camera that
    /// does not answer ended it, of which the link hears as of a read of @p what.
    template <typename Visit> bool walk(const QString& what, Visit&& visit) const;
    FeatureReader readFirst(const QStringList& candidates) const;

    Wrappers m_features;
    std::shared_ptr<CameraLink> m_link;
};
