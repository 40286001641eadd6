#include "imageformat/PictureFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ImageFormatWidget)
};

/// Of a decoded picture; nearly twice the largest sensor. It takes 1 GiB.
constexpr qint64 maximumPixels = qint64{1} << 28;

} // namespace

PictureFile PictureFile::load(const QString& fileName)
{
    const auto unusable = [&fileName](const QString& reason) {
        return PictureFile{{}, Text::tr("Picture '%1' cannot be used: %2").arg(fileName, reason)};
    };
    const QFileInfo file(fileName);
    if (!file.isFile())
        return unusable(Text::tr("It is no file."));
    QImageReader reader(fileName);
    const QSize size = reader.size();
    // Some formats tell the size only when they are decoded. They take a byte or more for a pixel.
    if ((size.isValid() ? qint64{size.width()} * size.height() : file.size()) > maximumPixels)
        return unusable(Text::tr("It is too large."));
    QImage image = reader.read();
    if (image.isNull())
        return unusable(reader.errorString());
    return {QPixmap::fromImage(std::move(image)), {}};
}

QString PictureFile::filter(const QList<QByteArray>& formats)
{
    QStringList patterns;
    for (const QByteArray& format : formats)
        patterns << QLatin1String("*.") + QString::fromLatin1(format).toLower();
    return QStringLiteral("Image files (%1)").arg(patterns.join(QLatin1Char(' ')));
}
