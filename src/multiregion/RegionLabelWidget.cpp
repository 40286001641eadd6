#include "multiregion/RegionLabelWidget.h"

#include "ui_RegionLabelWidget.h"
#include "widgets/Theme.h"

#include <algorithm>

namespace {

/// Equal style sheets are set once, for each setting restyles the widget.
void setStyleOnce(QWidget* widget, const QString& styleSheet)
{
    if (widget->styleSheet() != styleSheet)
        widget->setStyleSheet(styleSheet);
}

void setWeight(QLabel* label, QFont::Weight weight)
{
    QFont font = label->font();
    font.setWeight(weight);
    label->setFont(font);
}

} // namespace

RegionLabelWidget::RegionLabelWidget(int regionNo, const QRect& regionRect, const QColor& color,
                                     QWidget* parent)
    : QWidget(parent)
    , m_regionNo(regionNo)
    , m_ui(std::make_unique<Ui::RegionLabelWidget>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setRegionGeometry(regionRect);
    updateColor(m_regionNo, color);
    m_ui->lbl_Size->adjustSize();
    adjustSize();
    // The hint asks the labels for their widths.
    layout()->activate();
    updateGeometry();
}

RegionLabelWidget::~RegionLabelWidget() = default;

void RegionLabelWidget::setRegionGeometry(const QRect& regionRect)
{
    constexpr int fieldWidth = 4;
    m_ui->lbl_ID->setText(QString::number(m_regionNo));
    m_ui->lbl_Size->setText(QStringLiteral("(%1, %2)\n%3 x %4")
                                .arg(regionRect.x(), fieldWidth)
                                .arg(regionRect.y(), fieldWidth)
                                .arg(regionRect.width(), fieldWidth)
                                .arg(regionRect.height(), fieldWidth));
    // The minimum follows the labels' sizes, which would otherwise never shrink again.
    m_ui->lbl_Size->adjustSize();
    updateGeometry();
}

QSize RegionLabelWidget::minimumSizeHint() const
{
    constexpr int spareWidth = 20;
    return {m_ui->lbl_ID->width() + m_ui->lbl_Size->width() + spareWidth,
            std::max(m_ui->lbl_ID->height(), m_ui->lbl_Size->height())};
}

void RegionLabelWidget::updateColor(int regionNo, const QColor& color)
{
    if (regionNo != m_regionNo)
        return;
    const QString styleSheet
        = QStringLiteral("QLabel { color: %1; border-color: %1 }").arg(color.name());
    setStyleOnce(m_ui->lbl_ID, styleSheet);
    setStyleOnce(m_ui->lbl_Size, styleSheet);
    setStyleOnce(this,
                 QStringLiteral("#RegionLabelWidget { background: %1 }").arg(plateFor(color)));
}

void RegionLabelWidget::highlightIfSelected(int selectedRegion)
{
    const bool selected = selectedRegion == m_regionNo;
    m_ui->lbl_ID->setText(selected ? QStringLiteral("> %1").arg(m_regionNo, 2)
                                   : QStringLiteral("%1").arg(m_regionNo, 4));
    setWeight(m_ui->lbl_ID, selected ? QFont::Bold : QFont::Normal);
}
