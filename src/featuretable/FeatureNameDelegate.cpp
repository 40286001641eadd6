#include "featuretable/FeatureNameDelegate.h"

#include <algorithm>

namespace {

constexpr int darkLightness = 128;
constexpr int readableLightness = 150;

} // namespace

QSize FeatureNameDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if (m_heights.size() != index.model()->rowCount() || m_measuredFont != option.font)
        measure(option, index);
    return {m_widestName, m_heights.at(index.row())};
}

void FeatureNameDelegate::measure(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    m_measuredFont = option.font;
    m_widestName = 0;
    m_heights.clear();
    for (int row = 0; row < index.model()->rowCount(); ++row) {
        const QSize size = QStyledItemDelegate::sizeHint(option, index.siblingAtRow(row));
        m_widestName = std::max(m_widestName, size.width());
        m_heights.append(size.height());
    }
}

void FeatureNameDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    QColor text = option->palette.color(QPalette::Text);
    if (option->palette.color(QPalette::Base).lightness() >= darkLightness
        || text.lightness() >= readableLightness)
        return;
    text.setHsl(text.hslHue(), text.hslSaturation() / 2, readableLightness);
    option->palette.setColor(QPalette::Text, text);
}
