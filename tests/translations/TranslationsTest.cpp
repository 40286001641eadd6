#include "DataTable.h"
#include "page/BaseTabPluginWidget.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include <array>
#include <memory>

namespace {

const std::array bases{"tabextensionaoi", "tabextensionautoaoi", "tabextensionimgfmt", "viewer"};
const std::array languages{"de", "fr", "ja", "zh_CN"};

const char* const localeTest = "loadsForTheSystemLocale";
const char* const localeVariable = "TRANSLATIONS_TEST_LANGUAGE";

struct Message
{
    QString source;
    QString translation; ///< empty while it is not finished
};

QVector<Message> readMessages(const QString& base, const QString& language)
{
    QVector<Message> messages;
    QFile file(QStringLiteral(TRANSLATIONS_FOLDER "/%1_%2.ts").arg(base, language));
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "source")
            messages.append({xml.readElementText(), {}});
        else if (xml.name() == "translation" && !xml.attributes().hasAttribute("type"))
            messages.last().translation = xml.readElementText();
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

QStringList sortedMatches(const QString& text, const char* pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured();
    found.sort();
    return found;
}

/// What a translation lost; empty when nothing.
QString loss(const Message& message)
{
    const QString& source = message.source;
    const QString& translation = message.translation;
    if (translation.isEmpty())
        return "is not translated";
    for (const char* kept : {"%(\\d+|s)", "\\n", "\\t", "^\\s*", "\\s*$"})
        if (sortedMatches(source, kept) != sortedMatches(translation, kept))
            return QStringLiteral("differs in its %1").arg(QLatin1String(kept));
    // Names of the camera's features and entries, which are the same in every language.
    const QStringList quoted = sortedMatches(source, "(?<=')[\\w%]+(?=')");
    for (const QString& name : quoted)
        if (!translation.contains(name))
            return QStringLiteral("lost the name %1").arg(name);
    return {};
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    void textsAreComplete_data()
    {
        const DataTable row([](const QString& base, const QString& language) {
            const QVector<Message> messages = readMessages(base, language);
            QVERIFY2(!messages.isEmpty(), "no file, or no texts in it");
            for (const Message& message : messages) {
                const QString lost = loss(message);
                QVERIFY2(lost.isEmpty(), qPrintable(message.source + ' ' + lost));
            }
        });
        for (const char* const base : bases)
            for (const char* const language : languages)
                row(QByteArray(base) + '_' + language, base, language);
    }
    void textsAreComplete() { runRow(); }

    /// Qt reads the system's locale once, so each one takes a process of its own.
    void filesAreFoundForTheirLocale_data()
    {
        const DataTable row([](const char* locale, const char* language) {
#ifdef Q_OS_WIN
            QSKIP("The system's locale comes from Windows, not from the environment.");
#endif
            QProcess process;
            auto environment = QProcessEnvironment::systemEnvironment();
            for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
                environment.insert(variable, locale);
            environment.remove("LANGUAGE");
            environment.insert(localeVariable, language);
            process.setProcessEnvironment(environment);
            process.setProcessChannelMode(QProcess::MergedChannels);
            process.start(QCoreApplication::applicationFilePath(), {localeTest});
            QVERIFY(process.waitForFinished());
            QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                     process.readAll().constData());
        });
        row("German", "de_DE.UTF-8", "de");
        row("French of Canada", "fr_CA.UTF-8", "fr");
        row("Simplified Chinese", "zh_CN.UTF-8", "zh_CN");
        row("Traditional Chinese", "zh_TW.UTF-8", "");
        row("English", "en_US.UTF-8", "");
    }
    void filesAreFoundForTheirLocale()
    {
        runRow();
    }

    void loadsForTheSystemLocale()
    {
        if (!qEnvironmentVariableIsSet(localeVariable))
            QSKIP("Run once for each locale, by the test above.");
        QVERIFY(QDir::setCurrent(BINARY_FOLDER));
        for (const char* const base : bases) {
            const std::unique_ptr<QTranslator> translator(
                BaseTabPluginWidget::loadTranslator(base));
            QCOMPARE(translator->language(), qEnvironmentVariable(localeVariable));
        }
    }
};

QTEST_GUILESS_MAIN(TranslationsTest)

#include "TranslationsTest.moc"
