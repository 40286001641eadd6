#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// A folder of picture files, most of them bad.
class PictureFiles
{
public:
    PictureFiles();

    const QStringList& paths() const { return m_paths; }

private:
    void write(const QString& name, const QByteArray& data);

    QTemporaryDir m_folder;
    QStringList m_paths;
};
