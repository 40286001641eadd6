#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTextCodec>
#include <QTranslator>

namespace {

QByteArray languageOption(int argc, char** argv)
{
    const QByteArray name("--language");
    for (int index = 1; index < argc; ++index) {
        const QByteArray argument(argv[index]);
        if (argument.startsWith(name + '='))
            return argument.mid(name.size() + 1);
        if (argument == name && index + 1 < argc)
            return argv[index + 1];
    }
    return {};
}

void load(const QString& base, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(base + QLatin1Char('_') + QLocale::system().name(), folder))
        QCoreApplication::installTranslator(translator);
}

} // namespace

void chooseLanguage(int argc, char** argv)
{
    const QByteArray language = languageOption(argc, argv);
    if (language.isEmpty())
        return;
    qunsetenv("LANGUAGE");
    for (const char* variable : {"LC_ALL", "LANG"})
        qputenv(variable, language + ".UTF-8");
    // The C library may lack that locale, and would leave file names with ASCII alone.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void loadTranslations()
{
    load(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    load(QStringLiteral("viewer"), QCoreApplication::applicationDirPath() + QStringLiteral("/qm"));
}
