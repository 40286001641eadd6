#include "Row.h"
#include "Screen.h"
#include "multiregion/MultiRubberBandLabel.h"

#include <stdexcept>

// One step of dragging one band among others, each with its number painted.

namespace {

constexpr QSize sensor(5120, 3840);
constexpr QSize labelSize(1280, 960);
constexpr int cells = 8; ///< each way

const QColor regionColor(0, 100, 255);

/// A label with regions in the cells of a grid, and a pointer that moves one of them a little.
class RegionsDrag
{
public:
    explicit RegionsDrag(int regions)
        : m_label(new MultiRubberBandLabel(sensor.width(), sensor.height(), regionColor,
                                           QStringLiteral("Free"), nullptr))
        , m_window(Screen::show(m_label, labelSize))
    {
        m_label->setBackgroundImage(std::make_shared<QPixmap>(Screen::testPicture(sensor)), sensor,
                                    {});
        for (int region = 0; region < regions; ++region) {
            m_label->onRegionGeometryChanged(region, cell(dragged + region));
            m_label->onRegionActivated(region, true);
        }
        m_label->selectRegion(0);
        Screen::flush();
        const QRect area = cell(dragged);
        m_start = area.center() * labelSize.width() / sensor.width();
    }

    /// Once all windows are there: a window that comes takes the mouse from the others.
    void begin()
    {
        Screen::press(m_label, m_start);
        if (!m_label->isDragging())
            throw std::logic_error("no band was dragged");
    }

    void step()
    {
        const int phase = m_steps++ % 20;
        const int distance = phase < 10 ? phase : 20 - phase;
        Screen::move(m_label, m_start + QPoint(distance, distance) * 2);
        Screen::flush();
    }

private:
    // In the midst, so that it has neighbours on all sides when all cells are taken.
    static constexpr int dragged = cells * cells / 2 + cells / 2;

    static QRect cell(int index)
    {
        const int place = index % (cells * cells);
        const QSize size(sensor.width() / cells, sensor.height() / cells);
        return {place % cells * size.width(), place / cells * size.height(), size.width() * 3 / 5,
                size.height() * 3 / 5};
    }

    MultiRubberBandLabel* m_label;
    std::unique_ptr<QWidget> m_window;
    QPoint m_start;
    int m_steps = 0;
};

} // namespace

void addBandDragRows()
{
    const std::pair<int, std::optional<double>> rows[] = {{4, std::nullopt}, {16, 2.0}, {64, 4.0}};
    for (const auto& [regions, target] : rows) {
        addComparison("bands/" + std::to_string(regions), "a single band", target, {200, 20},
                      [regions = regions]() -> Contest {
                          const auto ours = std::make_shared<RegionsDrag>(regions);
                          const auto single = std::make_shared<RegionsDrag>(1);
                          ours->begin();
                          single->begin();
                          return {[ours] { ours->step(); }, [single] { single->step(); }};
                      });
    }
}
