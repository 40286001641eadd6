#pragma once

#include <QPixmap>
#include <QString>

/// A file that the user picked for a background.
struct PictureFile
{
    QPixmap picture;
    QString fault; ///< why there is no picture, for the user; empty when there is one

    /// Refuses what is no file (reading a pipe would wait for ever) and what would take all memory.
    static PictureFile load(const QString& fileName);

    /// For a dialog, as in "Image files (*.bmp *.png)".
    static QString filter(const QList<QByteArray>& formats);
};
