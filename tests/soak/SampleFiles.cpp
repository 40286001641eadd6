#include "SampleFiles.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImage>

#include <sys/stat.h>

namespace {

using Files = std::initializer_list<std::pair<const char*, QByteArray>>;

QStringList writeFiles(const QDir& folder, const Files& files)
{
    QStringList paths;
    for (const auto& [name, data] : files) {
        paths.append(folder.filePath(name));
        QFile file(paths.last());
        if (file.open(QIODevice::WriteOnly))
            file.write(data);
    }
    return paths;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray data;
    QBuffer buffer(&data);
    image.save(&buffer, format);
    return data;
}

} // namespace

QStringList writePictureFiles(const QDir& folder)
{
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QByteArray png = encoded(image, "PNG");
    const QByteArray jpeg = encoded(image, "JPG");
    image.setText("Comment", QString(100000, QLatin1Char('x')));
    image.setColorSpace(QColorSpace(QColorSpace::ProPhotoRgb));
    image.setDevicePixelRatio(3.0);
    const auto bitmap
        = QByteArray::fromHex("424d00000000000000003600000028000000307500003075000001001800");
    const auto twoFrames
        = QByteArray::fromHex("474946383961010001008000000000ffffffff21f90400000000002c000000000100"
                              "010000020244010021f90400000000002c00000000010001000002024401003b");
    QStringList paths = writeFiles(
        folder,
        {{"good.png", png},
         {"truncated.png", png.left(png.size() / 2)},
         {"truncated.jpg", jpeg.left(jpeg.size() / 3)},
         {"empty.png", {}},
         {"text.png", "This is no picture.\n"},
         {"huge.pbm", "P4\n30000 30000\n"},
         {"huge.ppm", "P6\n30000 30000 255\n"},
         {"huge.xpm",
          "/* XPM */\nstatic char* p[] = {\n\"30000 30000 1 1\",\n\"a c red\",\n\"aaa\"};\n"},
         {"huge.bmp", bitmap.leftJustified(54, '\0')},
         {"animated.gif", twoFrames},
         {"profile.png", encoded(image, "PNG")},
         {"forbidden.png", png}});
    QFile::setPermissions(paths.last(), {});
    folder.mkdir("folder.png");
    mkfifo(QFile::encodeName(folder.filePath("pipe.png")).constData(), 0600);
    for (const char* name : {"folder.png", "pipe.png", "missing.png"})
        paths.append(folder.filePath(name));
    return paths;
}

QStringList writeTranslationFolders(const QDir& folder)
{
    QFile built("qm/tabextensionimgfmt_de.qm");
    const QByteArray data = built.open(QIODevice::ReadOnly) ? built.readAll() : QByteArray();
    folder.mkpath("missing");
    // A directory in place of a file, half a file, and no translation at all.
    folder.mkpath("broken/qm/tabextensionimgfmt_de_DE.qm");
    writeFiles(folder.filePath("broken/qm"),
               {{"tabextensionimgfmt_de.qm", data.left(data.size() / 2)},
                {"tabextensionaoi_de_DE.qm", {}},
                {"tabextensionaoi_de.qm", data.left(16)},
                {"tabextensionautoaoi_de.qm", "This is no translation.\n"}});
    return {QDir::currentPath(), folder.filePath("missing"), folder.filePath("broken")};
}
