#include "featuretable/MyTableWidget.h"

#include <QHeaderView>
#include <QPainter>

#include <algorithm>

MyTableWidget::MyTableWidget(QWidget* parent)
    : QTableWidget(parent)
{
    setGridStyle(Qt::NoPen);
}

void MyTableWidget::keyboardSearch(const QString& search)
{
    if (currentColumn() == 0)
        QTableWidget::keyboardSearch(search);
}

// The last column reaches to the border, the last row need not.
void MyTableWidget::paintEvent(QPaintEvent* event)
{
    QTableWidget::paintEvent(event);
    const QStyleOptionViewItem option = viewOptions();
    const auto color
        = static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this));
    QPainter painter(viewport());
    const auto drawLine = [&painter, line = QColor::fromRgba(color)](const QRect& rect) {
        painter.fillRect(rect, line);
    };
    const QHeaderView& rows = *verticalHeader();
    const int bottom = std::min(viewport()->height(), rows.length() - rows.offset());
    for (int row = rows.logicalIndexAt(0), y = 0; row >= 0 && y < bottom;
         row = rows.logicalIndexAt(y)) {
        y = rows.sectionViewportPosition(row) + rows.sectionSize(row);
        drawLine({0, y - 1, viewport()->width(), 1});
    }
    const QHeaderView& columns = *horizontalHeader();
    for (int column = 0; column < columns.count(); ++column) {
        const int left = columns.sectionViewportPosition(column);
        const int x = isRightToLeft() ? left : left + columns.sectionSize(column) - 1;
        drawLine({x, 0, 1, bottom});
    }
}
