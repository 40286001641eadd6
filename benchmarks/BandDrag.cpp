#include "Row.h"
#include "Screen.h"
#include "multiregion/label/MultiRubberBandLabel.h"

#include <stdexcept>

// One step of dragging one band among others, each with its number painted.

namespace {

constexpr QSize sensor(5120, 3840);
constexpr QSize labelSize(1280, 960);

/// A grid of cells with a region in each.
struct Layout
{
    const char* mode;
    QSize cells;
    int dragged; ///< the cell of region 0, which is dragged
};

// Among neighbours on all sides; elsewhere the master, whose constraint lines cross the others.
constexpr Layout block{"Free", {8, 8}, 36};
constexpr Layout row{"Horizontal", {16, 1}, 0};
constexpr Layout column{"Vertical", {1, 16}, 0};
constexpr Layout tile{"Tile", {2, 8}, 0};

const QColor regionColor(0, 100, 255);

/// A label with regions, and a pointer that moves one of them a little.
class RegionsDrag
{
public:
    RegionsDrag(const Layout& layout, int regions)
        : m_layout(layout)
        , m_label(new MultiRubberBandLabel(sensor.width(), sensor.height(), regionColor,
                                           QString::fromLatin1(layout.mode), nullptr))
        , m_window(Screen::show(m_label, labelSize))
    {
        m_label->setBackgroundImage(std::make_shared<QPixmap>(Screen::testPicture(sensor)), sensor,
                                    {});
        for (int region = 0; region < regions; ++region) {
            m_label->onRegionGeometryChanged(region, cell(region));
            m_label->onRegionActivated(region, true);
        }
        m_label->selectRegion(0);
        Screen::flush();
        const QRect area = cell(0);
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
    QRect cell(int region) const
    {
        const int columns = m_layout.cells.width();
        const int place = (m_layout.dragged + region) % (columns * m_layout.cells.height());
        const QSize size(sensor.width() / columns, sensor.height() / m_layout.cells.height());
        return {place % columns * size.width(), place / columns * size.height(),
                size.width() * 3 / 5, size.height() * 3 / 5};
    }

    const Layout m_layout;
    MultiRubberBandLabel* m_label;
    std::unique_ptr<QWidget> m_window;
    QPoint m_start;
    int m_steps = 0;
};

} // namespace

void addBandDragRows()
{
    const struct
    {
        std::string name;
        Layout layout;
        int regions;
        int reference; ///< regions: the fewest that have as many lines
        std::optional<double> target;
    } rows[] = {{"bands/4", block, 4, 1, std::nullopt},
                {"bands/16", block, 16, 1, 2.0},
                {"bands/64", block, 64, 1, 4.0},
                {"bands/horizontal/16", row, 16, 2, 2.0},
                {"bands/vertical/16", column, 16, 2, 2.0},
                {"bands/tile/16", tile, 16, 4, 2.0},
                {"bands/horizontal/2", row, 2, 1, std::nullopt},
                {"bands/vertical/2", column, 2, 1, std::nullopt},
                {"bands/tile/4", tile, 4, 1, std::nullopt}};
    for (const auto& r : rows) {
        addComparison(r.name, std::to_string(r.reference) + " region(s)", r.target, {200, 20},
                      [layout = r.layout, count = r.regions, few = r.reference]() -> Contest {
                          const auto ours = std::make_shared<RegionsDrag>(layout, count);
                          const auto reference = std::make_shared<RegionsDrag>(layout, few);
                          ours->begin();
                          reference->begin();
                          return {[ours] { ours->step(); }, [reference] { reference->step(); }};
                      });
    }
}
