#include "PictureFiles.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImage>

#include <sys/stat.h>

namespace {

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
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
    const std::initializer_list<std::pair<const char*, QByteArray>> files{
        {"good.png", png},
        {"truncated.png", png.left(png.size() / 2)},
        {"truncated.jpg", jpeg.left(jpeg.size() / 3)},
        {"empty.png", {}},
        {"text.png", "This is no picture.\n"},
        {"huge.pbm", "P4\n30000 30000\n"},
        {"huge.ppm", "P6\n30000 30000 255\n"},
        {"huge.xpm",
         "/* XPM */\nstatic char* p[] = {\n\"30000 30000 1 1\",\n\"a c red\",\n\"aaa\"};\n"},
        {"huge.bmp",
         QByteArray("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x30\x75\0\0\x30\x75\0\0\1\0\x18\0", 30)
             + QByteArray(24, '\0')},
        // Two frames of one pixel.
        {"animated.gif",
         QByteArray::fromHex("474946383961010001008000000000ffffffff21f90400000000002c000000000100"
                             "010000020244010021f90400000000002c0000000001000100000202440100"
                             "3b")},
        {"profile.png", encoded(image, "PNG")},
        {"forbidden.png", png}};
    QStringList paths;
    for (const auto& [name, data] : files) {
        paths.append(folder.filePath(name));
        QFile file(paths.last());
        if (file.open(QIODevice::WriteOnly))
            file.write(data);
    }
    QFile::setPermissions(paths.last(), {});
    folder.mkdir("folder.png");
    mkfifo(QFile::encodeName(folder.filePath("pipe.png")).constData(), 0600);
    for (const char* name : {"folder.png", "pipe.png", "missing.png"})
        paths.append(folder.filePath(name));
    return paths;
}
