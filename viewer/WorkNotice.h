#pragma once

#include <QProgressDialog>

/// While it lives there is the busy cursor, and from a second on a dialog that tells what is done.
class WorkNotice : public QProgressDialog
{
    Q_OBJECT

public:
    WorkNotice(const QString& work, QWidget* parent);
    ~WorkNotice() override;

    /// For work that lasts, and keeps the window from its events.
    void showNow();
};
