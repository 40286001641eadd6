#include "PictureFiles.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDir>
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

PictureFiles::PictureFiles()
{
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QByteArray png = encoded(image, "PNG");
    const QByteArray jpeg = encoded(image, "JPG");

    write(QStringLiteral("good.png"), png);
    write(QStringLiteral("truncated.png"), png.left(png.size() / 2));
    write(QStringLiteral("truncated.jpg"), jpeg.left(jpeg.size() / 3));
    write(QStringLiteral("empty.png"), {});
    write(QStringLiteral("text.png"), "This is no picture.\n");
    write(QStringLiteral("huge.pbm"), "P4\n30000 30000\n");
    write(QStringLiteral("huge.ppm"), "P6\n30000 30000 255\n");
    write(QStringLiteral("huge.xpm"),
          "/* XPM */\nstatic char* p[] = {\n\"30000 30000 1 1\",\n\"a c red\",\n\"aaa\"};\n");
    write(QStringLiteral("huge.bmp"),
          QByteArray("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x30\x75\0\0\x30\x75\0\0\1\0\x18\0", 30)
              + QByteArray(24, '\0'));
    // Two frames of one pixel.
    write(QStringLiteral("animated.gif"),
          QByteArray::fromHex("474946383961010001008000000000ffffffff21f90400000000002c000000000100"
                              "010000020244010021f90400000000002c0000000001000100000202440100"
                              "3b"));
    image.setText(QStringLiteral("Comment"), QString(100000, QLatin1Char('x')));
    image.setColorSpace(QColorSpace(QColorSpace::ProPhotoRgb));
    image.setDevicePixelRatio(3.0);
    write(QStringLiteral("profile.png"), encoded(image, "PNG"));
    write(QStringLiteral("forbidden.png"), png);
    QFile::setPermissions(m_paths.last(), {});

    const QDir folder(m_folder.path());
    folder.mkdir(QStringLiteral("folder.png"));
    m_paths.append(folder.filePath(QStringLiteral("folder.png")));
    const QString pipe = folder.filePath(QStringLiteral("pipe.png"));
    if (mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0)
        m_paths.append(pipe);
    m_paths.append(folder.filePath(QStringLiteral("missing.png")));
}

void PictureFiles::write(const QString& name, const QByteArray& data)
{
    QFile file(m_folder.filePath(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(data);
    m_paths.append(file.fileName());
}
