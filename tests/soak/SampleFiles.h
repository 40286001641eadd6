#pragma once

#include <QDir>

/// Writes picture files, most of them bad; answers their paths.
QStringList writePictureFiles(const QDir& folder);

/// Where pages look for translations: as they were built, in the working directory; none at all;
/// and broken in several ways.
QStringList writeTranslationFolders(const QDir& folder);
