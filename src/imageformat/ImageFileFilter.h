#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// The name filter of a file dialog for pictures, as in "Image files (*.bmp *.png)": one lower-case
/// pattern for each format, in the order given.
QString imageFileFilter(const QList<QByteArray>& formats);
