#include "Row.h"
#include "Screen.h"
#include "regions/label/RubberBandLabel.h"

#include <QApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QMouseEvent>
#include <QRubberBand>
#include <qwt_picker.h>
#include <qwt_picker_machine.h>

#include <stdexcept>

// One step of a drag: a mouse event, and what it changed painted and flushed.

namespace {

constexpr QSize megapixels5(2592, 1944);
constexpr QSize megapixels20(5120, 3840);
constexpr QSize megapixels150(14204, 10652);

const QColor regionColor(0, 100, 255);

/// Fails where no step leads to a paint: the fastest of all drags is one that shows nothing.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* widget) { widget->window()->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_flushed = m_flushed || event->type() == QEvent::UpdateRequest;
        return false;
    }
    void require() const
    {
        if (!m_flushed)
            throw std::logic_error("a drag step painted nothing");
    }

private:
    bool m_flushed = false;
};

/// A widget in a window, and a pointer that goes back and forth on it.
class Drag
{
public:
    Drag(QWidget* content, const QSize& size, QWidget* target = nullptr)
        : m_window(Screen::show(content, size))
        , m_target(target ? target : content)
    {
    }

    QWidget* target() const { return m_target; }

    void begin(const QPoint& position)
    {
        m_start = position;
        Screen::press(m_target, position);
        PaintWatch watch(m_target);
        step();
        watch.require();
    }

    void step()
    {
        constexpr int turn = 40;
        const int phase = m_steps++ % (2 * turn);
        const int distance = 1 + (phase < turn ? phase : 2 * turn - phase);
        Screen::move(m_target, m_start + QPoint(7, 3) * distance);
        Screen::flush();
    }

private:
    std::unique_ptr<QWidget> m_window;
    QWidget* m_target;
    QPoint m_start;
    int m_steps = 0;
};

/// The band in its simplest form: no snapping, no clamping, no signals.
class BareBandLabel : public QLabel
{
public:
    BareBandLabel(const QPixmap& picture, const QRect& band)
        : m_band(new QRubberBand(QRubberBand::Rectangle, this))
    {
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setPixmap(picture);
        m_band->setGeometry(band);
        m_band->show();
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { m_offset = event->pos() - m_band->pos(); }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (event->buttons() != Qt::NoButton)
            m_band->move(event->pos() - m_offset);
    }

private:
    QRubberBand* m_band;
    QPoint m_offset;
};

/// Two fifths of the label wide and high.
QRect bandOn(const QSize& label)
{
    return {label.width() / 5, label.height() / 5, label.width() * 2 / 5, label.height() * 2 / 5};
}

QPixmap pictureOn(const QSize& label, const QSize& sensor)
{
    return Screen::testPicture(sensor).scaled(label, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

std::shared_ptr<Drag> ourDrag(const QSize& size, const QSize& sensor)
{
    auto* label = new RubberBandLabel(sensor.width(), sensor.height(), regionColor, nullptr);
    auto drag = std::make_shared<Drag>(label, size);
    QApplication::setOverrideCursor(Qt::WaitCursor); // which the label takes back
    label->showBackground(std::make_shared<QPixmap>(Screen::testPicture(sensor)), sensor, {});
    const double scale
        = static_cast<double>(sensor.width()) / sensor.scaled(size, Qt::KeepAspectRatio).width();
    const QRect band = bandOn(size);
    label->setRegion(qRound(band.y() * scale), qRound(band.x() * scale),
                     qRound(band.width() * scale), qRound(band.height() * scale));
    Screen::flush();
    return drag;
}

std::shared_ptr<Drag> bareBandDrag(const QSize& size, const QSize& sensor)
{
    return std::make_shared<Drag>(new BareBandLabel(pictureOn(size, sensor), bandOn(size)), size);
}

std::shared_ptr<Drag> qwtDrag(const QSize& size, const QSize& sensor)
{
    auto* label = new QLabel;
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setPixmap(pictureOn(size, sensor));
    auto drag = std::make_shared<Drag>(label, size);
    auto* picker = new QwtPicker(QwtPicker::RectRubberBand, QwtPicker::AlwaysOff, label);
    picker->setStateMachine(new QwtPickerDragRectMachine);
    picker->setRubberBandPen(regionColor);
    return drag;
}

std::shared_ptr<Drag> graphicsDrag(const QSize& size, const QSize& sensor)
{
    auto* scene = new QGraphicsScene;
    scene->addPixmap(Screen::testPicture(sensor));
    auto* view = new QGraphicsView(scene);
    scene->setParent(view);
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto drag = std::make_shared<Drag>(view, size, view->viewport());
    view->fitInView(scene->sceneRect(), Qt::KeepAspectRatio);
    const QRect band = bandOn(size);
    QColor fill = regionColor;
    fill.setAlpha(80);
    auto* item = scene->addRect(view->mapToScene(band).boundingRect(), QPen(regionColor, 0), fill);
    item->setFlag(QGraphicsItem::ItemIsMovable);
    QCoreApplication::processEvents();
    Screen::flush();
    return drag;
}

Contest contest(const std::shared_ptr<Drag>& ours, const QPoint& ourStart,
                const std::shared_ptr<Drag>& reference, const QPoint& referenceStart)
{
    ours->begin(ourStart);
    reference->begin(referenceStart);
    return {[ours] { ours->step(); }, [reference] { reference->step(); }};
}

void addRowsAt(const std::string& prefix, const QSize& size, const QSize& sensor,
               const Sampling& sampling)
{
    const QPoint inside = bandOn(size).center();
    // The picker spans its rectangle from the press; ours is dragged by the opposite corner.
    const QPoint corner = bandOn(size).bottomRight();
    addComparison(prefix + "/rubberband", "bare QRubberBand on a label", 1.0, sampling, [=] {
        return contest(ourDrag(size, sensor), inside, bareBandDrag(size, sensor), inside);
    });
    addComparison(prefix + "/qwt", "QwtPicker on a label", 1.0, sampling, [=] {
        const auto reference = qwtDrag(size, sensor);
        Screen::press(reference->target(), bandOn(size).topLeft());
        return contest(ourDrag(size, sensor), corner, reference, corner);
    });
    const bool large = size.width() > 2000;
    addComparison(
        prefix + "/graphicsview", "QGraphicsView, movable rectangle",
        large ? std::optional(0.2) : std::nullopt, sampling,
        [=] { return contest(ourDrag(size, sensor), inside, graphicsDrag(size, sensor), inside); });
}

} // namespace

void addRegionDragRows()
{
    const Sampling sampling{400, 40};
    const std::pair<const char*, QSize> sizes[]
        = {{"1200x900", {1200, 900}}, {"3000x2000", {3000, 2000}}};
    const std::pair<const char*, QSize> sensors[]
        = {{"5MP", megapixels5}, {"20MP", megapixels20}, {"150MP", megapixels150}};
    for (const auto& [sizeName, size] : sizes) {
        const std::string prefix = std::string("drag/") + sizeName + "/";
        for (const auto& [sensorName, sensor] : sensors)
            addRowsAt(prefix + sensorName, size, sensor, sampling);
        addComparison(prefix + "150MP/5MP", "our label, 5 megapixels", 1.05, {1000, 40},
                      [size = size] {
                          const QPoint inside = bandOn(size).center();
                          return contest(ourDrag(size, megapixels150), inside,
                                         ourDrag(size, megapixels5), inside);
                      });
    }
}
