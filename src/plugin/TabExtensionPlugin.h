#pragma once

#include "host/TabExtensionInterface.h"

/// Keeps no list of pages: each belongs to the viewer's widget that it was created on.
class TabExtensionPlugin : public TabExtensionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "TabExtensionInterface")
    Q_INTERFACES(TabExtensionInterface)

public:
    TabExtensionPlugin();

    qint32 createTab(const FeatureList& features, QWidget* page,
                     const QMap<QString, QVariant>* connections) override;
    bool isTabShareable(const QVariant&) override { return false; }
    bool isTabExclusive(const QVariant&) override { return false; }
};
