#pragma once

#include <QPixmap>
#include <QString>

/// A file that the user picked for a background.
struct PictureFile
{
    QPixmap picture;
    QString fault; ///< why there is no picture, for the user; empty when there is one

    /// Takes any format that Qt reads, of an animation the first frame. Refuses what is no file, as
    /// reading a pipe or a device would wait for ever, and pictures far larger than any sensor,
    /// which would take all memory.
    static PictureFile load(const QString& fileName);

    /// The name filter of a dialog, as in "Image files (*.bmp *.png)": one lower-case pattern for
    /// each format, in the order given.
    static QString filter(const QList<QByteArray>& formats);
};
