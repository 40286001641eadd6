#include "imageformat/PictureFile.h"

#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

namespace {

/// Of a decoded picture; nearly twice the largest sensor. It takes 1 GiB.
constexpr qint64 maximumPixels = qint64{1} << 28;

// Some formats tell the size only when they are decoded. They take a byte or more for a pixel.
qint64 estimatedPixels(const QImageReader& reader, const QFileInfo& file)
{
    const QSize size = reader.size();
    return size.isValid() ? qint64{size.width()} * size.height() : file.size();
}

} // namespace

QPixmap loadPicture(const QString& fileName)
{
    const QFileInfo file(fileName);
    if (!file.isFile()) {
        qWarning() << "No picture file:" << fileName;
        return {};
    }
    QImageReader reader(fileName);
    if (estimatedPixels(reader, file) > maximumPixels) {
        qWarning() << "The picture is too large:" << fileName;
        return {};
    }
    QImage image = reader.read();
    if (image.isNull())
        qWarning() << "The picture cannot be read:" << fileName << reader.errorString();
    return QPixmap::fromImage(std::move(image));
}
