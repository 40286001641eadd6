#pragma once

#include <QString>

/// Why a page could not be built. The plug-in entry answers the code to the viewer.
class TabExtensionException
{
public:
    TabExtensionException(const QString& function, const QString& message, qint32 code)
        : m_function(function)
        , m_message(message)
        , m_code(code)
    {
    }

    const QString& function() const { return m_function; } ///< that threw
    const QString& message() const { return m_message; }   ///< translated
    qint32 code() const { return m_code; }                 ///< for the viewer, never 0

private:
    QString m_function;
    QString m_message;
    qint32 m_code;
};
