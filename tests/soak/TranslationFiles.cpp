#include "TranslationFiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

TranslationFiles::TranslationFiles(const QDir& home)
    : m_folders{QDir::currentPath(), home.filePath("missing"), home.filePath("broken")}
{
    home.mkpath("missing");
    home.mkpath("broken/qm");
    // A directory in place of a file, half a file, and no translation at all.
    home.mkpath("broken/qm/tabextensionimgfmt_de_DE.qm");
    QFile built("qm/tabextensionimgfmt_de.qm");
    const QByteArray data = built.open(QIODevice::ReadOnly) ? built.readAll() : QByteArray();
    const std::initializer_list<std::pair<const char*, QByteArray>> files{
        {"tabextensionimgfmt_de.qm", data.left(data.size() / 2)},
        {"tabextensionaoi_de_DE.qm", {}},
        {"tabextensionaoi_de.qm", data.left(16)},
        {"tabextensionautoaoi_de.qm", "This is no translation.\n"}};
    for (const auto& [name, content] : files) {
        QFile file(home.filePath(QLatin1String("broken/qm/") + name));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
}

void TranslationFiles::use(Kind kind) const
{
    QDir::setCurrent(m_folders[kind]);
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
