#pragma once

#include <ZebCPP/ZebCPP.h>

#include <QObject>
#include <QString>

/// Turns the SDK's change notifications into a Qt signal, emitted on the SDK's thread. Having no
/// state, it may be notified by several threads at once.
class PluginFeatureObserver : public QObject, public ZebCPP::IFeatureObserver
{
    Q_OBJECT

public:
    PluginFeatureObserver() = default;

    void FeatureChanged(const ZebCPP::FeaturePtr& feature) override;

signals:
    /// @p sValue is the value as text: floats with six significant digits, booleans "true" or
    /// "false", a fixed text for commands and raw data, empty when it could not be read.
    void setChangedFeature(const QString& featureName, const QString& sValue);
};
