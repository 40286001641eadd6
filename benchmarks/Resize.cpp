#include "Row.h"
#include "Screen.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "regions/label/RubberBandLabel.h"

#include <QApplication>
#include <QLabel>

// A window edge pulled to and fro: every size is painted.

namespace {

constexpr QSize sensor(5120, 3840);
constexpr QSize windowSize(1200, 900);
constexpr int resizes = 200;

QSize sizeAt(int step)
{
    const int phase = step % 100;
    const int growth = phase < 50 ? phase : 100 - phase;
    return windowSize + QSize(4, 3) * growth;
}

class ResizedLabel
{
public:
    explicit ResizedLabel(QWidget* label)
        : m_label(label)
        , m_window(Screen::show(label, sizeAt(50)))
    {
    }

    void step()
    {
        m_label->resize(sizeAt(m_steps++));
        Screen::flush();
    }

private:
    QWidget* m_label;
    std::unique_ptr<QWidget> m_window;
    int m_steps = 0;
};

std::shared_ptr<ResizedLabel> regionLabel()
{
    auto* label = new RubberBandLabel(sensor.width(), sensor.height(), Qt::blue, nullptr);
    auto resized = std::make_shared<ResizedLabel>(label);
    QApplication::setOverrideCursor(Qt::WaitCursor); // which the label takes back
    label->showBackground(std::make_shared<QPixmap>(Screen::testPicture(sensor)), sensor, {});
    return resized;
}

std::shared_ptr<ResizedLabel> regionsLabel()
{
    auto* label = new MultiRubberBandLabel(sensor.width(), sensor.height(), Qt::blue,
                                           QStringLiteral("Free"), nullptr);
    auto resized = std::make_shared<ResizedLabel>(label);
    label->setBackgroundImage(std::make_shared<QPixmap>(Screen::testPicture(sensor)), sensor, {});
    return resized;
}

QPixmap keptPicture(const QSize& size)
{
    return Screen::testPicture(sensor).scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The background that a label keeps, scaled as a resize demands.
Work scaling(const QSize& kept)
{
    return [background = keptPicture(kept), step = 0]() mutable {
        background.scaled(sizeAt(step++), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    };
}

/// The same and a bare label that shows it: what is added is Qt's and the
/// window system's.
Work scalingAndShowing(const QSize& kept)
{
    auto* label = new QLabel;
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const auto resized = std::make_shared<ResizedLabel>(label);
    return [=, background = keptPicture(kept), step = 0]() mutable {
        label->setPixmap(
            background.scaled(sizeAt(step++), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        resized->step();
    };
}

} // namespace

void addResizeRows()
{
    // The first keeps its background as large as it was when chosen, the second
    // up to 2048 pixels.
    addComparison("resize/region", "QPixmap::scaled and a bare QLabel", 1.1, {resizes, 10},
                  []() -> Contest {
                      const auto label = regionLabel();
                      return {[label] { label->step(); }, scalingAndShowing(sizeAt(50))};
                  });
    addComparison("resize/regions", "QPixmap::scaled", 1.2, {resizes, 10}, []() -> Contest {
        const auto label = regionsLabel();
        return {[label] { label->step(); }, scaling({2048, 2048})};
    });
}
