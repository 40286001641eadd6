#include "regions/label/LabelBand.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

LabelBand::LabelBand(QWidget* parent)
    : QRubberBand(QRubberBand::Rectangle, parent)
{
    setUpdatesEnabled(false);
    // Else Qt would let the parent paint all that the band has covered when it shrinks.
    setAttribute(Qt::WA_StaticContents);
}

void LabelBand::paint(QPainter& painter, const QRegion& region)
{
    if (isHidden() || size().isEmpty())
        return;
    if (mask().isEmpty() && image().fits(size())) {
        image().paint(painter, geometry(), region & geometry());
        return;
    }
    painter.save();
    painter.translate(pos());
    if (!mask().isEmpty())
        painter.setClipRegion(mask(), Qt::IntersectClip);
    const QStyleOptionRubberBand option = styleOption();
    style()->drawControl(QStyle::CE_RubberBand, &option, &painter, this);
    painter.restore();
}

QStyleOptionRubberBand LabelBand::styleOption() const
{
    QStyleOptionRubberBand option;
    initStyleOption(&option);
    return option;
}

const BandImage& LabelBand::image()
{
    if (!m_image)
        m_image.emplace(styleOption(), *this);
    return *m_image;
}

bool LabelBand::event(QEvent* event)
{
    const bool isHandled = QRubberBand::event(event);
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (isHidden())
            break;
        parentWidget()->update(image().changed(m_shown, geometry()));
        m_shown = geometry();
        break;
    case QEvent::Show:
        m_shown = geometry();
        [[fallthrough]];
    case QEvent::Hide:
        parentWidget()->update(m_shown);
        break;
    default:
        break;
    }
    return isHandled;
}

void LabelBand::changeEvent(QEvent* event)
{
    QRubberBand::changeEvent(event);
    m_image.reset();
    parentWidget()->update(geometry());
}
