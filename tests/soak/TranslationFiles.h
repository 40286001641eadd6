#pragma once

#include <QDir>

/// The module's translations, which it looks for in the working directory: as they were built, none
/// at all, and broken in several ways.
class TranslationFiles
{
public:
    enum Kind {
        Built,
        Missing,
        Broken
    };

    /// The working directory has the built ones.
    explicit TranslationFiles(const QDir& home);

    /// Pages find these from now on; there is no page yet.
    void use(Kind kind) const;
    /// Whether the texts of the pages are those of the files, or of the sources where there are
    /// none.
    static bool areShown(Kind kind);

private:
    const QStringList m_folders; ///< of each kind
};
