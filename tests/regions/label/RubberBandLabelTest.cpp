#include "regions/label/RubberBandLabel.h"
#include "DataTable.h"
#include "Pictures.h"
#include "TestEvents.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QRubberBand>
#include <QScreen>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>

using Act = std::function<void(RubberBandLabel&)>;

namespace {

QString text(const QRect& r)
{
    return QString("%1 %2 %3 %4").arg(r.y()).arg(r.x()).arg(r.width()).arg(r.height());
}

} // namespace

class RubberBandLabelTest : public QObject
{
    Q_OBJECT

public slots:
    void deleteLabel() { m_label.reset(); }

private slots:
    /// Four sensor pixels a label pixel, the band at (100, 75) of size 200 x 150.
    void init()
    {
        m_label = std::make_unique<RubberBandLabel>(1600, 1200, QColor(0, 100, 255), nullptr);
        m_band = m_label->findChild<QRubberBand*>();
        m_label->resize(400, 300);
        m_label->setRegion(300, 400, 800, 600);
        m_label->show();
        QVERIFY(QTest::qWaitForWindowActive(m_label.get()));
        m_events.clear();
        const auto note = [this](const char* name) {
            return [this, name](int top, int left, int width, int height) {
                m_events << name + QString(" ") + text({left, top, width, height});
            };
        };
        const RubberBandLabel* label = m_label.get();
        connect(label, &RubberBandLabel::UpdateGeometry, this, note("update"));
        connect(label, &RubberBandLabel::SendGeometry, this, note("send"));
        connect(label, &RubberBandLabel::GeometryChangeStarted, this,
                [this] { m_events << "started"; });
        connect(label, &RubberBandLabel::clicked, this, [this] { m_events << "clicked"; });
    }

    void cleanup() { m_label.reset(); }

    void clicksAndDrags()
    {
        drag(m_label.get(), {20, 20}, {60, 60}); // outside
        QCOMPARE(takeEvents(), QString("clicked"));
        drag(m_label.get(), {298, 150}, {400, 150});
        QCOMPARE(takeEvents(),
                 QString("started, clicked, update 300 400 1200 600, "
                         "send 300 400 1200 600"));
        QCOMPARE(text(m_label->region()), QString("300 400 1200 600"));
        press(m_label.get(), {200, 150});
        sendMouse(m_label.get(), QEvent::MouseButtonPress, {20, 20}); // a second one
        release(m_label.get(), {210, 160});
        QCOMPARE(takeEvents(), QString("started, clicked, clicked, send 300 400 1200 600"));
    }

    /// The picture is one line high.
    void dragsOnFlatSensors_data()
    {
        const DataTable row([this](const QPoint& from, const QPoint& to, const QString& expected) {
            m_label->setSensorSize(4096, 2);
            m_label->setRegion(1, 1024, 2048, 1);
            QCOMPARE(m_band->geometry(), QRect(100, 0, 200, 1));
            drag(m_label.get(), from, to);
            QCOMPARE(m_events.last(), expected);
        });
        row("move", {200, 0}, {250, 0}, "send 1 1536 2048 1");
        row("move, held beside the line", {200, 9}, {0, 9}, "send 1 0 2048 1");
        row("left edge, which no hover showed", {97, 1}, {50, 0}, "send 1 512 2560 1");
        row("beside the band", {90, 0}, {150, 0}, "clicked");
    }
    void dragsOnFlatSensors() { runRow(); }

    void survivesDeletion_data()
    {
        const DataTable row([this](const char* signal, const Act& act) {
            connect(m_label.get(), signal, this, SLOT(deleteLabel()));
            const QPointer<RubberBandLabel> label = m_label.get();
            press(label, {200, 150});
            if (label)
                act(*label);
            QTRY_VERIFY(!label);
        });
        const auto nothing = [](auto&) {};
        row("at the press", SIGNAL(GeometryChangeStarted()), nothing);
        row("at the click", SIGNAL(clicked()), nothing);
        row("in a move", SIGNAL(UpdateGeometry(int, int, int, int)), [](auto& label) {
            sendMouse(&label, QEvent::MouseMove, {220, 150});
        });
        row("at the release", SIGNAL(SendGeometry(int, int, int, int)), [](auto& label) {
            release(&label, {220, 150});
        });
        row("when disabled", SIGNAL(dragDropped()), [](auto& label) { label.setEnabled(false); });
    }
    void survivesDeletion() { runRow(); }

    void regionsWaitForTheDrag()
    {
        press(m_label.get(), {200, 150});
        sendMouse(m_label.get(), QEvent::MouseMove, {220, 150});
        m_label->setRegion(0, 0, 400, 400);
        QCOMPARE(m_band->geometry(), QRect(120, 75, 200, 150));
        m_label->setEnabled(false);
        QCOMPARE(m_band->geometry(), QRect(0, 0, 100, 100));
    }

    /// A layout or a window may resize the label while the mouse holds the band.
    void keepsTheHeldRegionOnAResize_data()
    {
        const DataTable row([this](const QPoint& from, const QPoint& to, const QRect& expected) {
            press(m_label.get(), from);
            sendMouse(m_label.get(), QEvent::MouseMove, to);
            for (const QSize& size : {QSize(200, 150), QSize(333, 100), QSize(100, 75)}) {
                m_label->resize(size);
                const LabelGeometry where{
                    size, {1600, 1200}, m_label->pixmap(Qt::ReturnByValue).size()};
                QCOMPARE(m_band->geometry(), atLeastOnePixel(bandForRegion(expected, where)));
            }
            if (from == QPoint(200, 150)) // the mouse holds the band where it did
                sendMouse(m_label.get(), QEvent::MouseMove, to / 4);
            m_label->resize(400, 300);
            release(m_label.get(), {390, 10});
            QCOMPARE(text(m_label->region()), text(expected));
        });
        row("move", {200, 150}, {220, 175}, {480, 400, 800, 600});
        row("left onto right", {100, 150}, {380, 150}, {1196, 300, 4, 600});
        row("top, whose height waits for the release", {200, 76}, {200, 100}, {400, 400, 800, 500});
    }
    void keepsTheHeldRegionOnAResize() { runRow(); }

    void withoutARegionFillsTheWidth()
    {
        RubberBandLabel label(1600, 1200, Qt::red, nullptr);
        label.resize(402, 300);
        label.show();
        QCOMPARE(label.findChild<QRubberBand*>()->geometry(), QRect(0, 0, 402, 300));
    }

    /// A picture keeps the whole pixels of the size at which it was chosen.
    void endsItsBandWithThePicture()
    {
        m_label->setMinimumSize(1, 1);
        m_label->resize(40, 29);
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_label->showBackground(std::make_shared<QPixmap>(1600, 1200), {1600, 1200}, {});
        QVERIFY(!QApplication::overrideCursor());
        m_label->resize(400, 300);
        m_label->setRegion(0, 0, 1600, 1200);
        QCOMPARE(m_label->pixmap(Qt::ReturnByValue).size(), QSize(393, 300));
        QCOMPARE(m_band->geometry(), QRect(0, 0, 393, 300));
    }

    /// In one layer instead of several, each of which would round.
    void looksAsTheStyleDrawsIt()
    {
        showNoise();
        for (const QString& style : QStyleFactory::keys()) {
            QApplication::setStyle(style);
            for (const QSize& size : {QSize(150, 90), QSize(2, 40), QSize(30, 1)}) {
                m_band->setGeometry(QRect(QPoint(40, 50), size));
                QImage expected = m_label->pixmap(Qt::ReturnByValue).toImage();
                QStyleOptionRubberBand option;
                option.initFrom(m_band);
                option.shape = QRubberBand::Rectangle;
                option.opaque = true;
                QPainter painter(&expected);
                painter.translate(m_band->pos());
                if (!m_band->mask().isEmpty())
                    painter.setClipRegion(m_band->mask());
                m_band->style()->drawControl(QStyle::CE_RubberBand, &option, &painter, m_band);
                painter.end();
                const int difference = largestDifference(m_label->grab().toImage(), expected);
                QVERIFY2(difference <= 2, qPrintable(style));
            }
        }
    }

    /// What has reached the window so far is what a painting of all would give.
    void updatesAllThatChanges()
    {
        showNoise();
        QPalette palette;
        palette.setBrush(QPalette::Highlight, QColor(255, 0, 0, 80));
        QVector<std::function<void()>> changes{[] {}};
        for (const QRect& next :
             {QRect(90, 65, 200, 140), QRect(60, 50, 120, 100), QRect(70, 60, 0, 0),
              QRect(70, 60, 2, 40), QRect(30, 20, 350, 250), QRect(50, 50, 100, 100)})
            changes << [this, next] { m_band->setGeometry(next); };
        changes << [&] { m_band->setPalette(palette); } << [&] { m_band->hide(); }
                << [&] { m_band->show(); } << [&] { m_label->setEnabled(false); }
                << [&] { m_label->setEnabled(true); };
        QImage before;
        for (const auto& change : changes) {
            change();
            const auto inWindow = [this] {
                return QGuiApplication::primaryScreen()->grabWindow(m_label->winId()).toImage();
            };
            QTRY_COMPARE(largestDifference(inWindow(), m_label->grab().toImage()), 0);
            const QImage now = inWindow();
            QVERIFY(now != std::exchange(before, now));
        }
    }

private:
    void showNoise()
    {
        QImage image(400, 300, QImage::Format_RGB32);
        auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
        QRandomGenerator::global()->fillRange(pixels, qsizetype(image.width()) * image.height());
        const auto noise = std::make_shared<QPixmap>(QPixmap::fromImage(image));
        m_label->showBackground(noise, {1600, 1200}, {});
        QCoreApplication::processEvents();
    }
    QString takeEvents() { return std::exchange(m_events, {}).join(", "); }

    std::unique_ptr<RubberBandLabel> m_label;
    QRubberBand* m_band = nullptr;
    QStringList m_events;
};

QTEST_MAIN(RubberBandLabelTest)

#include "RubberBandLabelTest.moc"
