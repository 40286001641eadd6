#include "CameraItemDelegate.h"

#include <QApplication>
#include <QPainter>

#include <utility>

namespace {

constexpr int margin = 3;

} // namespace

void CameraItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const QString name = std::exchange(item.text, {});
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state & QStyle::State_Selected;
    const auto drawLine = [&](const QFont& font, int top, const QString& text) {
        const QFontMetrics metrics(font);
        const QRect line(item.rect.left() + 2 * margin, top, item.rect.width() - 4 * margin,
                         metrics.height());
        painter->setFont(font);
        painter->drawText(line, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(text, Qt::ElideRight, line.width()));
        return line.bottom() + 1;
    };
    QColor color = item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    painter->save();
    painter->setPen(color);
    const int below = drawLine(item.font, item.rect.top() + margin, name);
    color.setAlphaF(isSelected ? 1.0 : 0.7);
    painter->setPen(color);
    drawLine(option.font, below, index.data(DescriptionRole).toString());
    painter->restore();
}

QSize CameraItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {0, 2 * QFontMetrics(option.font).height() + 2 * margin};
}
