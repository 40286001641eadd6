#pragma once

#include <QTableWidget>

/// A table that searches for typed text in the first column only: while a value is current, typing
/// does not move the selection. It paints its grid lines itself: Qt sets their pixels one by one,
/// which takes as long as all else that is painted.
class MyTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit MyTableWidget(QWidget* parent);

    void keyboardSearch(const QString& search) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
