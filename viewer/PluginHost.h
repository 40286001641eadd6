#pragma once

#include "host/TabExtensionInterface.h"

#include <QCoreApplication>
#include <QPluginLoader>

/// Loads the module and asks it for pages. The viewer keeps nothing else of the module.
class PluginHost
{
    Q_DECLARE_TR_FUNCTIONS(PluginHost)

public:
    /// Outcome of asking for a page.
    class Result
    {
    public:
        /// The code that the module answered.
        explicit Result(qint32 code);
        /// The module could not be asked, or did not answer.
        explicit Result(const QString& failure);

        bool succeeded() const { return m_code == 0 && m_failure.isEmpty(); }
        /// Why there is no page, for a person.
        QString reason() const;

    private:
        qint32 m_code = 0;
        QString m_failure;
    };

    /// Loads the module; whether that worked shows in failure().
    explicit PluginHost(const QString& path);

    /// Why the module is of no use, or empty.
    QString failure() const { return m_failure; }

    Result createTab(const TabExtensionInterface::FeatureList& features, QWidget* page,
                     const QMap<QString, QVariant>& connections);

private:
    QPluginLoader m_loader;
    TabExtensionInterface* m_module = nullptr;
    QString m_failure;
};
