#pragma once

#include <QString>

class QTranslator;

/// The translations of the pages, in the folder "qm/" of the working directory.
namespace Translators {

/// Looks for the system's locale, then for its language alone. The caller owns the translator,
/// which is empty when there is no file.
QTranslator* load(const QString& baseName);

/// Installs a translation in the application, once for each base name; true when it did so now.
bool install(const QString& baseName);

} // namespace Translators
