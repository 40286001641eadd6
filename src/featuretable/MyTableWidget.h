#pragma once

#include <QTableWidget>

/// A table that searches for typed text in the first column only: while a value is current, typing
/// does not move the selection.
class MyTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;

    void keyboardSearch(const QString& search) override;
};
