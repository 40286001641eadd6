#include "featuretable/FeatureNameDelegate.h"

namespace {

constexpr int darkLightness = 128;
constexpr int leastOnDark = 150;
constexpr int mostOnLight = 110;

} // namespace

QSize FeatureNameDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if (m_size.isValid() && m_measuredFont == option.font)
        return m_size;
    m_measuredFont = option.font;
    m_size = {};
    for (int row = 0; row < index.model()->rowCount(); ++row)
        m_size = m_size.expandedTo(QStyledItemDelegate::sizeHint(option, index.siblingAtRow(row)));
    return m_size;
}

void FeatureNameDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    QColor text = option->palette.color(QPalette::Text);
    const bool isDark = option->palette.color(QPalette::Base).lightness() < darkLightness;
    if (isDark && text.lightness() < leastOnDark)
        text.setHsl(text.hslHue(), text.hslSaturation() / 2, leastOnDark);
    else if (!isDark && text.lightness() > mostOnLight)
        text.setHsl(text.hslHue(), text.hslSaturation(), mostOnLight);
    option->palette.setColor(QPalette::Text, text);
}
