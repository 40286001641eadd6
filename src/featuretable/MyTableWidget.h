#pragma once

#include <QTableWidget>

/// A table that searches for typed text in the first column only: while a value is current, typing
/// does not move the selection.
///
/// Qt sets the pixels of grid lines one by one, which takes as long as all else that is painted. So
/// the table has lines of no style, which keep their place, and paints them itself.
class MyTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit MyTableWidget(QWidget* parent);

    void keyboardSearch(const QString& search) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
