#include "WorkNotice.h"

#include <QApplication>

WorkNotice::WorkNotice(const QString& work, QWidget* parent)
    : QProgressDialog(work, tr("Cancel"), 0, 0, parent)
{
    constexpr int patienceMs = 1000;
    setMinimumDuration(patienceMs);
    setWindowTitle(parent->window()->windowTitle());
    QApplication::setOverrideCursor(Qt::BusyCursor);
}

WorkNotice::~WorkNotice()
{
    QApplication::restoreOverrideCursor();
}

void WorkNotice::showNow()
{
    setCancelButton(nullptr);
    show();
    // It is painted when the window system has shown it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
