#pragma once

#include "host/TabExtensionInterface.h"

#include <QWidget>

class QPlainTextEdit;

/// Time, category and text of what the pages and the viewer report, newest last.
class LogPane : public QWidget
{
    Q_OBJECT

public:
    explicit LogPane(QWidget* parent = nullptr);

    void append(ZebViewerLogCategory category, const QString& text);

private:
    QPlainTextEdit* m_text;
};
