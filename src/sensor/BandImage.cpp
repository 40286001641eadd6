#include "sensor/BandImage.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

constexpr int side = 48;
constexpr int widestFrame = 8;

QImage drawnBand(QStyleOptionRubberBand option, const QWidget& band, int scale)
{
    QImage image(side * scale, side * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    option.rect = {0, 0, side, side};
    QPainter painter(&image);
    band.style()->drawControl(QStyle::CE_RubberBand, &option, &painter, &band);
    return image;
}

QRect inside(const QRect& rect, int frame)
{
    const QRect shrunk = rect.adjusted(frame, frame, -frame, -frame);
    return shrunk.isValid() ? shrunk : QRect();
}

bool hasOneColor(const QImage& image, const QRect& area)
{
    return image.copy(area) == image.copy({area.center(), QSize(1, 1)}).scaled(area.size());
}

/// One of the three parts of a band along an axis: where it is drawn, and from where.
struct Piece
{
    int start;
    int length;
    int source;
    bool drawnOut;
};

std::array<Piece, 3> pieces(int start, int length, int frame)
{
    return {Piece{start, frame, 0, false}, Piece{start + frame, length - 2 * frame, side / 2, true},
            Piece{start + length - frame, frame, side - frame, false}};
}

} // namespace

BandImage::BandImage(const QStyleOptionRubberBand& option, const QWidget& band)
    : m_scale(qRound(band.devicePixelRatioF()))
{
    if (!qFuzzyCompare(band.devicePixelRatioF(), m_scale))
        return;
    m_image = drawnBand(option, band, m_scale);
    for (int frame = 0; !m_frame && frame <= widestFrame; ++frame) {
        if (hasOneColor(m_image, inside(m_image.rect(), frame * m_scale)))
            m_frame = frame;
    }
}

bool BandImage::fits(const QSize& band) const
{
    return m_frame && std::min(band.width(), band.height()) > 2 * *m_frame;
}

void BandImage::paint(QPainter& painter, const QRect& band, const QRegion& region) const
{
    for (const Piece& row : pieces(band.y(), band.height(), *m_frame)) {
        for (const Piece& column : pieces(band.x(), band.width(), *m_frame)) {
            const QRect piece(column.start, row.start, column.length, row.length);
            for (const QRect& rect : region) {
                const QRect target = piece & rect;
                if (target.isEmpty())
                    continue;
                const QRect source(column.source + (column.drawnOut ? 0 : target.x() - piece.x()),
                                   row.source + (row.drawnOut ? 0 : target.y() - piece.y()),
                                   column.drawnOut ? 1 : target.width(),
                                   row.drawnOut ? 1 : target.height());
                painter.setClipRect(target);
                painter.drawImage(target, m_image,
                                  QRect(source.topLeft() * m_scale, source.size() * m_scale));
            }
        }
    }
}

QRegion BandImage::changed(const QRect& before, const QRect& after) const
{
    const QRegion both = QRegion(before) + after;
    return m_frame ? both - (inside(before, *m_frame) & inside(after, *m_frame)) : both;
}
