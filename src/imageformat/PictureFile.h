#pragma once

#include <QPixmap>

class QString;

/// Loads a picture in any format that Qt reads, of an animation the first frame. Null, with a line
/// in the debug log, for what is no picture: also for a folder, a pipe or a device, which reading
/// would wait on for ever, and for pictures far larger than any sensor, which would take all
/// memory.
QPixmap loadPicture(const QString& fileName);
