#include "FeatureNameDelegate.h"

#include <algorithm>

namespace {

constexpr int darkLightness = 128;
constexpr int readableLightness = 150;

} // namespace

QSize FeatureNameDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if (m_widestName < 0 || m_measuredFont != option.font) {
        m_measuredFont = option.font;
        m_widestName = 0;
        for (int row = 0; row < index.model()->rowCount(); ++row) {
            const QModelIndex name = index.siblingAtRow(row);
            m_widestName
                = std::max(m_widestName, QStyledItemDelegate::sizeHint(option, name).width());
        }
    }
    const int height = QStyledItemDelegate::sizeHint(option, index).height();
    return {m_widestName, height};
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
