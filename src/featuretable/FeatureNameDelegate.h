#pragma once

#include <QFont>
#include <QStyledItemDelegate>

/// Draws the feature names, whose colours are as light or dark as it takes to read them on the
/// table. Every name asks for the width of the longest, so that the column keeps its width while
/// rows are scrolled or filtered. To be installed when the names are in the model.
class FeatureNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    mutable QFont m_measuredFont;
    mutable QSize m_size; ///< of the largest name
};
