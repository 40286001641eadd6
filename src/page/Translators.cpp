#include "page/Translators.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <memory>

namespace Translators {

QTranslator* load(const QString& baseName)
{
    auto translator = std::make_unique<QTranslator>();
    const QString locale = QLocale::system().name();
    const QString prefix = QLatin1String("qm/") + baseName + QLatin1Char('_');
    if (!translator->load(prefix + locale))
        static_cast<void>(translator->load(prefix + locale.left(2)));
    return translator.release();
}

bool install(const QString& baseName)
{
    // Held weakly: a translator ends with the application that it is a child of.
    static QHash<QString, QPointer<QTranslator>> installed;
    if (installed.value(baseName))
        return false;
    std::unique_ptr<QTranslator> translator(load(baseName));
    if (translator->isEmpty())
        return false;
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator.get());
    installed.insert(baseName, translator.release());
    return true;
}

} // namespace Translators
