#pragma once

#include <QStyledItemDelegate>

/// A camera in the list: its name, and below it what kind of camera it is.
class CameraItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The item's data that is the second line.
    static constexpr int DescriptionRole = Qt::UserRole;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
