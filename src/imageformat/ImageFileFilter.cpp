#include "imageformat/ImageFileFilter.h"

#include <QStringList>

QString imageFileFilter(const QList<QByteArray>& formats)
{
    QStringList patterns;
    for (const QByteArray& format : formats)
        patterns << QLatin1String("*.") + QString::fromLatin1(format).toLower();
    return QStringLiteral("Image files (%1)").arg(patterns.join(QLatin1Char(' ')));
}
