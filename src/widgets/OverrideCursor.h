#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows a cursor all over the application for as long as the object lives.
class OverrideCursor
{
public:
    explicit OverrideCursor(const QCursor& cursor) { QGuiApplication::setOverrideCursor(cursor); }
    ~OverrideCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(OverrideCursor)
};
