#include "DataTable.h"
#include "TestEvents.h"
#include "multiregion/MultiROIPage.h"
#include "multiregion/label/LineRubberBand.h"
#include "sensor/Span.h"

#include <QComboBox>
#include <QRandomGenerator>

class MultiROIVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    /// Whatever is done, nothing is written between press and release, nothing but what others
    /// wrote brings an overlap by a drag, what was in line stays in line, and in the end all agree
    /// with the camera.
    void keepsInStep_data()
    {
        const DataTable row([](const QByteArray& mode) {
            MultiROIPage open("multi-region", mode);
            open.loadDefaults();
            QRandomGenerator random(2);
            Answers answers({});
            const QStringList geometry{"SubRegionOffsetX", "SubRegionOffsetY", "SubRegionWidth",
                                       "SubRegionHeight"};
            for (int step = 0; step < 90; ++step) {
                const int action = random.bounded(12);
                const int region = random.bounded(4);
                const QString& feature = geometry[random.bounded(4)];
                const bool wasInLine = outOfLine(open).isEmpty();
                // Now and then a read is refused; what is shown stays.
                const bool isRefusing = action < 3;
                if (isRefusing)
                    open.camera->failures().add(
                        sim::FailureInjector::anyFeature, sim::Operation::GetValue,
                        sim::Failure::refuse(),
                        sim::Occurrence::randomly(0.05, std::uint64_t(step) + 1));
                bool mayLeaveLine = isRefusing;
                if (action == 0) {
                    // Escape keeps what the arrangement needs; a button may stay without a place.
                    open.button(region)->click();
                    const bool isChecked = open.button(region)->isChecked();
                    mayLeaveLine = isChecked != open.isOn(region);
                    if (mayLeaveLine)
                        open.page->setFeatureValue(region, -1, "SubRegionMode",
                                                   isChecked ? "On" : "Off");
                } else if (action == 1) {
                    open.page->setFeatureValue(region, -1, feature, random.bounded(16, 400));
                } else if (action == 2) {
                    open.camera->writeAsOtherClient(feature.toStdString(),
                                                    8 * random.bounded(2, 60));
                    mayLeaveLine = true;
                } else if (action == 3) {
                    open.page->findChild<QComboBox*>()->setCurrentIndex(region);
                    mayLeaveLine = true;
                } else if (action == 4) {
                    answers.buttons << "Yes";
                    open.page->loadDefaultConfiguration();
                } else {
                    dragSomewhere(open, random, action < 8);
                }
                open.settle();
                QVERIFY(open.label->regionRectangle(region).width() > 0);
                open.camera->failures().clear();
                if (isRefusing)
                    open.log.clear();
                open.settle();
                QString wrong = open.contradiction();
                if (wasInLine && !mayLeaveLine)
                    wrong += outOfLine(open);
                QVERIFY2(wrong.isEmpty(),
                         qPrintable(QString("step %1: %2 after action %3, %4")
                                        .arg(step)
                                        .arg(wrong)
                                        .arg(action)
                                        .arg(region)));
            }
            for (const QString& line : qAsConst(open.log))
                QVERIFY2(line.contains("minimum size"), qPrintable(line));
        });
        for (const char* mode : {"Vertical", "Horizontal", "Tile", "Free"})
            row(mode, QByteArray(mode));
    }
    void keepsInStep() { runRow(); }

private:
    static int overlaps(const MultiROIPage& open)
    {
        int count = 0;
        for (int a = 0; a < 4; ++a) {
            for (int b = 0; b < a; ++b)
                count
                    += open.isOn(a) && open.isOn(b) && overlap(open.onCamera(a), open.onCamera(b));
        }
        return count;
    }

    /// Which regions do not share their rows or columns as the arrangement wants it.
    static QString outOfLine(const MultiROIPage& open)
    {
        QVector<int> active;
        for (const QChar region : open.active())
            active << region.digitValue();
        const QString mode = open.page->findChild<QComboBox*>()->currentText();
        for (const ConstraintGroup& group : constraintGroups(arrangementMode(mode), active)) {
            for (const int member : group.members) {
                if (spanOf(open.onCamera(member), group.axis())
                    != spanOf(open.onCamera(group.master()), group.axis()))
                    return QString("%1 is not in line with %2").arg(member).arg(group.master());
            }
        }
        return {};
    }

    /// From anywhere, or by a constraint line when there is one.
    static void dragSomewhere(const MultiROIPage& open, QRandomGenerator& random, bool byLine)
    {
        const auto anywhere = [&random](const QRect& area) {
            return area.topLeft()
                + QPoint(random.bounded(area.width()), random.bounded(area.height()));
        };
        const QRect image({}, open.label->shownSize());
        const auto lines = open.label->findChildren<LineRubberBand*>();
        const QPoint from = anywhere(
            byLine && !lines.isEmpty() ? lines[random.bounded(lines.size())]->geometry() : image);
        const QPoint to = anywhere(image);
        const int before = overlaps(open);
        press(open.label, from);
        open.camera->journal().clear();
        for (int i = 1; i <= 5; ++i)
            sendMouse(open.label, QEvent::MouseMove, from + (to - from) * i / 5);
        QCOMPARE(open.camera->journal().writes().size(), 0u);
        release(open.label, to);
        // What overlaps already may be dragged anywhere.
        QVERIFY(before > 0 || overlaps(open) == 0);
        for (int region = 0; region < 4; ++region)
            QVERIFY(QRect(0, 0, 2592, 1944).contains(open.onCamera(region)));
    }
};

QTEST_MAIN(MultiROIVisitsTest)
#include "MultiROIVisitsTest.moc"
