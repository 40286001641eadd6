#include "sensor/SensorLabel.h"
#include "DataTable.h"
#include "TestEvents.h"

#include <QDialog>
#include <QMenu>

#include <memory>

namespace {

/// Notes what it is told; there is something to drag in the middle.
class Probe : public SensorLabel
{
public:
    Probe()
        : SensorLabel({1600, 1200}, Qt::blue, nullptr)
    {
        connect(this, &SensorLabel::aboutToDrag, this, [this] { events << "about"; });
        connect(this, &SensorLabel::dragDropped, this, [this] { events << "dropped"; });
    }

    using SensorLabel::setPicture;
    using SensorLabel::setSensor;

    QStringList events;
    QRect band{100, 75, 200, 150};

protected:
    bool grabs(const QPoint& point) const override { return band.contains(point); }
    void press(const QPoint& point) override { note("press", point); }
    void drag(const QPoint& point) override { note("drag", point); }
    void release(const QPoint& point) override { note("release", point); }
    void drop() override { events << "drop"; }
    void hover(const QPoint&) override { }

private:
    void note(const QString& name, const QPoint& point)
    {
        events << QString("%1 %2,%3").arg(name).arg(point.x()).arg(point.y());
    }
};

SensorPicture greenPicture()
{
    auto image = std::make_shared<QPixmap>(1600, 1200);
    image->fill(Qt::green);
    return {image, {1600, 1200}, {}};
}

using Act = std::function<void(Probe*)>;

} // namespace

class SensorLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_label = std::make_unique<Probe>();
        m_label->resize(400, 300);
        m_label->show();
        QVERIFY(QTest::qWaitForWindowActive(m_label.get()));
    }
    void cleanup() { m_label.reset(); }

    void tellsOfDrags()
    {
        drag(m_label.get(), {20, 20}, {200, 150}); // from where there is nothing
        QCOMPARE(m_label->events, QStringList());
        press(m_label.get(), {200, 150});
        sendMouse(m_label.get(), QEvent::MouseMove, {-20, 400});
        release(m_label.get(), {-20, 400});
        QCOMPARE(m_label->events.join(", "),
                 QString("about, press 200,150, drag 0,300, release -20,400"));
    }

    /// In the midst of a drag.
    void disturbances_data()
    {
        const DataTable row([this](bool endsDrag, const Act& act) {
            QWindow* const window = m_label->windowHandle();
            QTest::mousePress(window, Qt::LeftButton, {}, {200, 150});
            m_label->events.clear();
            act(m_label.get());
            QCOMPARE(m_label->events, endsDrag ? QStringList("drop") : QStringList());
            QCoreApplication::processEvents();
            QCOMPARE(m_label->isDragging(), !endsDrag);
            QTest::mouseRelease(window, Qt::LeftButton, {}, {210, 150});
            QCOMPARE(m_label->events.last(), QString(endsDrag ? "dropped" : "release 210,150"));
        });
        row("disabled", true, [](Probe* label) { label->setEnabled(false); });
        row("hidden", true, [](Probe* label) { label->hide(); });
        row("sensor lost", true, [](Probe* label) { label->setSensor({-1, -1}); });
        row("menu", true, [](Probe* label) {
            auto* menu = new QMenu(label);
            menu->addAction("action");
            menu->popup(label->mapToGlobal({10, 10}));
            QTimer::singleShot(0, menu, &QMenu::close);
        });
        row("dialog", true, [](Probe* label) {
            auto* dialog = new QDialog(label);
            dialog->open();
            QTimer::singleShot(0, dialog, &QDialog::reject);
        });
        row("a release elsewhere", true, [](Probe*) {
            QWidget other;
            QTest::mouseRelease(&other, Qt::LeftButton);
        });
        row("a window takes the focus", false, [](Probe* label) {
            QWidget other;
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            QVERIFY(!label->isActiveWindow());
        });
        row("a frame", false, [](Probe* label) {
            label->setPicture(greenPicture(), {400, 300}, {400, 300});
        });
        row("a resize", false, [](Probe* label) { label->resize(420, 300); });
        row("other buttons", false, [](Probe* label) {
            const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
            sendMouse(label, QEvent::MouseButtonPress, {150, 150}, both, Qt::RightButton);
            sendMouse(label, QEvent::MouseButtonRelease, {20, 20}, Qt::LeftButton, Qt::RightButton);
        });
    }
    void disturbances() { runRow(); }

    void missedReleaseEndsTheDrag()
    {
        press(m_label.get(), {200, 150});
        QTest::mouseMove(m_label->windowHandle(), {230, 150});
        QCOMPARE(m_label->events.mid(1).join(", "), QString("press 200,150, drop, dropped"));
    }

    /// What the receivers of aboutToDrag() leave decides.
    void editorsCommitBeforeADrag_data()
    {
        const DataTable row([this](const QString& expected, const Act& commit) {
            connect(m_label.get(), &SensorLabel::aboutToDrag, this,
                    [=, label = m_label.get()] { commit(label); });
            const QPointer<Probe> label = m_label.get();
            press(label, {200, 150});
            if (label)
                QCOMPARE(label->events.join(", "), expected);
        });
        row("moved away", "about", [](Probe* label) { label->band.moveLeft(250); });
        row("disabled", "about", [](Probe* label) { label->setEnabled(false); });
        row("nothing", "about, press 200,150", [](Probe*) {});
        row("deleted", {}, [this](Probe*) { m_label.reset(); });
    }
    void editorsCommitBeforeADrag() { runRow(); }

    void hidesOnlyWhatItPaints_data()
    {
        const DataTable row([this](bool hides, const Act& change) {
            QVERIFY(!m_label->testAttribute(Qt::WA_OpaquePaintEvent)); // it is translucent still
            m_label->setPicture(greenPicture(), {400, 300}, {400, 300});
            change(m_label.get());
            QCOMPARE(m_label->testAttribute(Qt::WA_OpaquePaintEvent), hides);
        });
        row("as it is", true, [](Probe*) {});
        row("resized", true, [](Probe* label) { label->resize(200, 150); });
        row("wider than the picture", false, [](Probe* label) { label->resize(600, 300); });
        row("disabled", false, [](Probe* label) { label->setEnabled(false); });
        row("margins", false, [](Probe* label) { label->setContentsMargins(0, 9, 0, 0); });
    }
    void hidesOnlyWhatItPaints() { runRow(); }

private:
    std::unique_ptr<Probe> m_label;
};

QTEST_MAIN(SensorLabelTest)

#include "SensorLabelTest.moc"
