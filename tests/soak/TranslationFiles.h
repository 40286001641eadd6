#pragma once

#include <QStringList>
#include <QTemporaryDir>

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

    TranslationFiles();
    ~TranslationFiles();
    TranslationFiles(const TranslationFiles&) = delete;
    TranslationFiles& operator=(const TranslationFiles&) = delete;

    /// Pages find these from now on; there is no page yet.
    void use(Kind kind) const;
    /// Whether the texts of the pages are those of the files, or of the sources where there are
    /// none.
    static bool areShown(Kind kind);

private:
    void breakFiles() const;

    const QString m_built;
    QTemporaryDir m_folder;
};
