#include "TranslationFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTranslator>

TranslationFiles::TranslationFiles()
    : m_built(QDir::currentPath())
{
    const QDir folder(m_folder.path());
    folder.mkpath(QStringLiteral("missing"));
    folder.mkpath(QStringLiteral("broken/qm"));
    breakFiles();
}

TranslationFiles::~TranslationFiles()
{
    QDir::setCurrent(m_built);
}

// A directory in place of a file, half a file, and no translation at all.
void TranslationFiles::breakFiles() const
{
    const QDir folder(m_folder.filePath(QStringLiteral("broken/qm")));
    folder.mkdir(QStringLiteral("tabextensionimgfmt_de_DE.qm"));
    QFile built(QDir(m_built).filePath(QStringLiteral("qm/tabextensionimgfmt_de.qm")));
    const QByteArray data = built.open(QIODevice::ReadOnly) ? built.readAll() : QByteArray();
    const std::initializer_list<std::pair<const char*, QByteArray>> files{
        {"tabextensionimgfmt_de.qm", data.left(data.size() / 2)},
        {"tabextensionaoi_de_DE.qm", {}},
        {"tabextensionaoi_de.qm", data.left(16)},
        {"tabextensionautoaoi_de.qm", "This is no translation.\n"}};
    for (const auto& [name, content] : files) {
        QFile file(folder.filePath(QLatin1String(name)));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
}

void TranslationFiles::use(Kind kind) const
{
    const QString folder = kind == Built
        ? m_built
        : m_folder.filePath(kind == Missing ? QStringLiteral("missing") : QStringLiteral("broken"));
    QDir::setCurrent(folder);
    // Or else the first page's would serve all.
    const auto installed = qApp->findChildren<QTranslator*>();
    qDeleteAll(installed);
}

bool TranslationFiles::areShown(Kind kind)
{
    const char* const source = "Pixel Format: ";
    const bool isTranslated
        = QCoreApplication::translate("ImageFormatWidget", source) != QLatin1String(source);
    return isTranslated == (kind == Built);
}
