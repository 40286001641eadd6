#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <QVariant>

class FeatureManager;
class FeatureReader;
class QWidget;

/// Edits features in the spin boxes, combo boxes and check boxes of a form, which are named after
/// them: three lower-case letters and the feature's exact name, as in "cmbPixelFormat". A field
/// shows what the camera told last, and nothing here makes it emit.
class FeatureBinder
{
public:
    FeatureBinder(QWidget& form, FeatureManager& manager);

    /// Empty for names with nothing behind the prefix.
    static QString featureOf(const QObject* field);

    /// Shows the field. False, and the field is left alone, when the camera lacks the feature.
    bool bind(QWidget* field);
    /// The fields of these features, in their order, by one look-up. Answers which are to be shown
    /// once more, for not all was told.
    QStringList show(const QStringList& features);
    /// Shows what the camera made of the value. False when not all was told; also when the camera
    /// holds no entry of the combo box, which then selects nothing.
    bool write(QWidget* field, const QVariant& value);

private:
    enum class Entries {
        Refilled,
        Kept
    };
    /// In the features' order; none of a derived class, which has rules of its own.
    QList<QWidget*> boundTo(const QStringList& features) const;
    bool showReading(QWidget* field, FeatureReader& feature, Entries entries);

    QWidget& m_form;
    FeatureManager& m_manager;
    QHash<QString, QVariant> m_told; ///< each feature's last known value
};
