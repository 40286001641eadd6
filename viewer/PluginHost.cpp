#include "PluginHost.h"

#include <exception>

namespace {

constexpr qint32 cameraNotSupported = 4;

} // namespace

PluginHost::Result::Result(qint32 code)
    : m_code(code)
{
}

PluginHost::Result::Result(const QString& failure)
    : m_failure(failure)
{
}

QString PluginHost::Result::reason() const
{
    if (!m_failure.isEmpty())
        return m_failure;
    if (m_code == cameraNotSupported)
        return tr("The module does not support this camera (result code %1).").arg(m_code);
    return tr("The module could not build a page for this camera (result code %1).").arg(m_code);
}

PluginHost::PluginHost(const QString& path)
    : m_loader(path)
{
    QObject* root = m_loader.instance();
    if (!root) {
        m_failure = tr("The module %1 cannot be loaded: %2").arg(path, m_loader.errorString());
        return;
    }
    m_module = qobject_cast<TabExtensionInterface*>(root);
    if (!m_module)
        m_failure = tr("%1 is not a module for this viewer.").arg(path);
}

PluginHost::Result PluginHost::createTab(const TabExtensionInterface::FeatureList& features,
                                         QWidget* page, const QMap<QString, QVariant>& connections)
{
    try {
        return m_module ? Result(m_module->createTab(features, page, &connections))
                        : Result(m_failure);
    } catch (const std::exception& error) {
        return Result(tr("The module failed: %1").arg(QString::fromLocal8Bit(error.what())));
    } catch (...) {
        return Result(tr("The module failed for an unknown reason."));
    }
}
