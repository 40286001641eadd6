#include "SampleFiles.h"

#include <QFile>
#include <QPixmap>

#include <sys/stat.h>

namespace {

QString writeFile(const QDir& folder, const char* name, const QByteArray& data)
{
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(data);
    return file.fileName();
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QStringList writePictureFiles(const QDir& folder)
{
    const QString good = folder.filePath("good.png");
    QPixmap(640, 480).save(good);
    folder.mkdir("folder.png");
    mkfifo(QFile::encodeName(folder.filePath("pipe.png")).constData(), 0600);
    QStringList paths{
        good,
        folder.filePath("folder.png"),
        folder.filePath("pipe.png"),
        folder.filePath("missing.png"),
        writeFile(folder, "truncated.png", read(good).chopped(200)),
        writeFile(folder, "empty.png", {}),
        writeFile(folder, "huge.ppm", "P6\n30000 30000 255\n"),
        writeFile(
            folder, "huge.xpm",
            "/* XPM */\nstatic char* p[] = {\n\"30000 30000 1 1\",\n\"a c red\",\n\"aaa\"};\n"),
        writeFile(folder, "forbidden.png", read(good))};
    QFile::setPermissions(paths.last(), {});
    return paths;
}

QStringList writeTranslationFolders(const QDir& folder)
{
    const QByteArray data = read("qm/tabextensionimgfmt_de.qm");
    folder.mkpath("missing");
    // A directory in place of a file, half a file, and no translation at all.
    folder.mkpath("broken/qm/tabextensionimgfmt_de_DE.qm");
    writeFile(folder, "broken/qm/tabextensionimgfmt_de.qm", data.left(data.size() / 2));
    writeFile(folder, "broken/qm/tabextensionautoaoi_de.qm", "This is no translation.\n");
    return {QDir::currentPath(), folder.filePath("missing"), folder.filePath("broken")};
}
