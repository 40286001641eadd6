#pragma once

#include <QDir>

/// Writes picture files, most of them bad; answers their paths.
QStringList writePictureFiles(const QDir& folder);
