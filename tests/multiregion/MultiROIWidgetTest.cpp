#include "multiregion/MultiROIWidget.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "TestEvents.h"
#include "multiregion/MultiRubberBandLabel.h"
#include "multiregion/RegionLabelWidget.h"
#include "multiregion/RegionSpan.h"
#include "multiregion/RegionTableWidget.h"
#include "widgets/RoundButton.h"

#include "simulator/Model.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QRandomGenerator>
#include <QTabBar>
#include <QTableWidget>
#include <QtTest>

#include <functional>
#include <memory>
#include <utility>

namespace {

QString text(const QRect& rect)
{
    return QString("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/// Answers the message boxes that come up, each by a button's text, and notes what they say.
class Answers : public QObject
{
public:
    explicit Answers(const QStringList& buttons)
        : m_buttons(buttons)
    {
        startTimer(5);
    }

    QStringList texts;

protected:
    void timerEvent(QTimerEvent*) override
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        texts << box->text();
        const QString wanted = m_buttons.isEmpty() ? "Escape" : m_buttons.takeFirst();
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().remove('&') == wanted) {
                button->click();
                return;
            }
        }
        QTest::keyClick(box, Qt::Key_Escape);
    }

private:
    QStringList m_buttons;
};

/// Does something while a message box is open, then answers it.
class UnderBox : public Answers
{
public:
    explicit UnderBox(const std::function<void()>& action, const QString& button = "OK")
        : Answers({button})
        , m_action(action)
    {
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        if (!QApplication::activeModalWidget())
            return;
        if (m_action)
            std::exchange(m_action, {})();
        Answers::timerEvent(event);
    }

private:
    std::function<void()> m_action;
};

/// A page over a simulated camera, shown.
struct OpenPage
{
    explicit OpenPage(const QByteArray& model, const QByteArray& mode = "Vertical")
        : camera(sim::createCamera(model.toStdString()))
    {
        camera->setNotifications(sim::NotificationSettings::synchronous());
        camera->writeAsOtherClient("MultipleRegionArrangement", mode.toStdString());
        page = std::make_unique<MultiROIWidget>(featureList(*camera), nullptr);
        QObject::connect(page.get(), &MultiROIWidget::loggingMessage, page.get(),
                         [this](ZebViewerLogCategory, const QString& line) { log << line; });
        label = page->findChild<MultiRubberBandLabel*>();
        tabs = page->findChild<QTabWidget*>("tabRegions");
        page->resize(700, 806);
        page->show();
        settle();
        camera->journal().clear();
    }

    void settle() const
    {
        camera->flushNotifications();
        for (int i = 0; i < 2; ++i) {
            QCoreApplication::processEvents();
            page->updateTimer();
        }
    }

    RoundButton* button(int region) const
    {
        return qobject_cast<RoundButton*>(tabs->tabBar()->tabButton(region, QTabBar::LeftSide));
    }

    void loadDefaults() const
    {
        Answers answers({"Yes"});
        page->loadDefaultConfiguration();
        settle();
    }

    int at(const char* feature, int region) const
    {
        const std::string name = camera->has(feature) ? feature : feature + strlen("SubRegion");
        return int(camera->feature(name).integerAt(region));
    }

    QRect onCamera(int region) const
    {
        return {at("SubRegionOffsetX", region), at("SubRegionOffsetY", region),
                at("SubRegionWidth", region), at("SubRegionHeight", region)};
    }

    bool isOn(int region) const { return camera->feature("SubRegionMode").textAt(region) == "On"; }

    void writeAsOther(const char* name, const char* value) const
    {
        camera->writeAsOtherClient(name, std::string(value));
    }

    QString active() const { return active(tabs->count()); }

    QString active(int count) const
    {
        QString result;
        for (int region = 0; region < count; ++region) {
            if (isOn(region))
                result += QString::number(region);
        }
        return result;
    }

    QRect inTable(int region) const
    {
        const auto* table = tabs->widget(region)->findChild<QTableWidget*>("tblFeatures");
        QMap<QString, int> values;
        for (int row = 0; row < table->rowCount(); ++row)
            values.insert(table->item(row, 0)->data(Qt::UserRole).toString(),
                          table->item(row, 1)->data(Qt::DisplayRole).toInt());
        const auto value = [&values](const char* name) {
            return values.value(QString("SubRegion") + name, values.value(name));
        };
        return {value("OffsetX"), value("OffsetY"), value("Width"), value("Height")};
    }

    /// What contradicts the camera, empty when all is at rest.
    QString contradiction() const
    {
        const auto labels = page->findChildren<RegionLabelWidget*>();
        for (int region = 0; region < tabs->count(); ++region) {
            if (label->isRegionShown(region) != isOn(region))
                return QString("band of %1").arg(region);
            if (button(region)->isChecked() != isOn(region))
                return QString("button of %1").arg(region);
            if (!isOn(region))
                continue;
            const QRect rect = onCamera(region);
            if (label->regionRectangle(region) != rect)
                return QString("label of %1").arg(region);
            if (inTable(region) != rect)
                return QString("table of %1: %2").arg(region).arg(text(inTable(region)));
            const QString shown = labels[region]->findChild<QLabel*>("lbl_Size")->text();
            if (shown.simplified().remove(' ')
                != QString("(%1,%2)%3x%4")
                       .arg(rect.x())
                       .arg(rect.y())
                       .arg(rect.width())
                       .arg(rect.height()))
                return QString("region label of %1").arg(region);
        }
        return {};
    }

    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<MultiROIWidget> page;
    MultiRubberBandLabel* label = nullptr;
    QTabWidget* tabs = nullptr;
    QStringList log;
};

} // namespace

class MultiROIWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void loadsDefaults_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<QString>("active");
        for (const char* mode : {"Vertical", "Horizontal", "Tile", "Free"}) {
            const auto row = [mode](const char* model, const char* active) {
                QTest::addRow("%s %s", mode, model)
                    << QByteArray(mode) << QByteArray(model) << QString(active);
            };
            row("multi-region", "0123");
            row("multi-region-6", "0123");
            row("multi-region-integer", "0123");
            row("multi-region-2", "01");
            row("multi-region-3", qstrcmp(mode, "Tile") == 0 ? "" : "012");
            row("multi-region-older", "0123");
        }
    }

    void loadsDefaults()
    {
        QFETCH(QByteArray, mode);
        QFETCH(QByteArray, model);
        const OpenPage open(model, mode);
        open.loadDefaults();
        QTEST(open.active(), "active");
        for (int region = 0; region < open.tabs->count(); ++region) {
            if (open.isOn(region))
                QCOMPARE(open.camera->feature("SubRegionStatus").textAt(region),
                         std::string("Valid"));
        }
        QCOMPARE(open.contradiction(), QString());
        QCOMPARE(open.log.size(), open.active().isEmpty() ? 1 : 0);
        // At rest the page leaves the camera alone.
        open.camera->journal().clear();
        open.settle();
        QCOMPARE(open.camera->journal().writes().size(), 0u);
    }

    void refusedDefaultsChangeNothing()
    {
        const OpenPage open("multi-region");
        Answers answers({"No"});
        open.page->loadDefaultConfiguration();
        QCOMPARE(answers.texts, QStringList("Overwrite the current region settings?"));
        QVERIFY(open.camera->journal().writes().empty());
    }

    void activatesInARow()
    {
        OpenPage open("multi-region", "Horizontal");
        open.page->saveNewRegionGeometry(0, {0, 0, 640, 480});
        open.page->saveNewRegionGeometry(1, {100, 600, 640, 480});
        open.page->setFeatureValue(1, -1, "SubRegionMode", "Off");
        open.settle();
        QVERIFY(!open.button(2)->isEnabled());
        QSignalSpy activated(open.page.get(), &MultiROIWidget::regionActivated);
        open.button(1)->click();
        // Shrunk first, it is placed one increment behind region 0 at the minimum.
        const QRect placed = open.onCamera(1);
        QCOMPARE(placed.x(), 640 + 8);
        QCOMPARE(placed.height(), 480);
        QCOMPARE(activated.last(), (QVariantList{1, true}));
        QVERIFY(open.button(2)->isEnabled());
        QCOMPARE(open.tabs->currentIndex(), 1);
        open.button(2)->click();
        QCOMPARE(open.active(), QString("012"));
        QCOMPARE(open.contradiction(), QString());
        {
            Answers answers({"Cancel", "OK"});
            open.button(1)->click();
            QCOMPARE(open.active(), QString("012"));
            QVERIFY(open.button(1)->isChecked());
            open.button(1)->click();
            QVERIFY(answers.texts.first().contains("'Horizontal' requires deactivation of all"));
        }
        QCOMPARE(open.active(), QString("0"));
        QCOMPARE(open.contradiction(), QString());
        QVERIFY(open.log.isEmpty());
        // Without room the button stays and the reason is logged.
        open.page->saveNewRegionGeometry(0, {0, 0, 2592, 480});
        open.button(1)->click();
        QCOMPARE(open.active(), QString("0"));
        QVERIFY(open.button(1)->isChecked());
        QCOMPARE(open.log,
                 QStringList("Region1 cannot be activated into a valid configuration due to the "
                             "minimum size."));
    }

    void deactivatesInATile_data()
    {
        QTest::addColumn<int>("region");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("active");
        QTest::addColumn<QString>("question");
        QTest::newRow("row") << 3 << "Row"
                             << "01"
                             << "either a row or a column";
        QTest::newRow("column") << 3 << "Column"
                                << "02"
                                << "either a row or a column";
        QTest::newRow("cancel") << 3 << "Cancel"
                                << "0123"
                                << "either a row or a column";
        QTest::newRow("escape") << 3 << "Escape"
                                << "0123"
                                << "either a row or a column";
        QTest::newRow("region 1") << 1 << "OK"
                                  << "02"
                                  << "the whole column.";
        QTest::newRow("region 2") << 2 << "OK"
                                  << "01"
                                  << "the whole row.";
        QTest::newRow("region 2, not") << 2 << "Cancel"
                                       << "0123"
                                       << "the whole row.";
    }

    void deactivatesInATile()
    {
        QFETCH(int, region);
        QFETCH(QString, answer);
        QFETCH(QString, question);
        const OpenPage open("multi-region", "Tile");
        open.loadDefaults();
        Answers answers({answer});
        open.button(region)->click();
        QTEST(open.active(), "active");
        QCOMPARE(answers.texts.size(), 1);
        QVERIFY2(answers.texts[0].contains(question), qPrintable(answers.texts[0]));
        open.settle();
        QCOMPARE(open.contradiction(), QString());
    }

    void completesATile()
    {
        const OpenPage open("multi-region", "Tile");
        open.loadDefaults();
        {
            Answers answers({"OK"});
            open.button(1)->click();
        }
        QCOMPARE(open.active(), QString("02"));
        Answers answers({"OK"});
        open.button(1)->click();
        QCOMPARE(answers.texts,
                 QStringList("Arrangement Mode 'Tile' requires activation of the whole column."));
        QCOMPARE(open.active(), QString("012"));
        QVERIFY(!open.label->isDragging());
        QCOMPARE(open.contradiction(), QString());
    }

    void writesSharedValuesToTheGroup()
    {
        OpenPage open("multi-region", "Horizontal");
        open.loadDefaults();
        open.page->setFeatureValue(2, 0, "SubRegionHeight", 600);
        open.page->setFeatureValue(2, -1, "SubRegionWidth", 400);
        for (int region = 0; region < 4; ++region) {
            QCOMPARE(open.onCamera(region).height(), 600);
            QCOMPARE(open.onCamera(region).width(), region == 2 ? 400 : 512);
        }
        QCOMPARE(open.contradiction(), QString());
        QCOMPARE(open.page->findChild<QTabWidget*>("tabRegions")->currentIndex(), 0);
        open.camera->failures().add("SubRegionHeight", sim::Operation::SetValue,
                                    sim::Failure::refuse());
        open.page->setFeatureValue(0, -1, "SubRegionHeight", 700);
        QCOMPARE(open.log.size(), 4);
        QCOMPARE(open.log[3],
                 QString("SubRegion: 3, Saving feature 'SubRegionHeight' to value=700 failed."));
    }

    /// The bounds that an editor offers follow the neighbours.
    void boundsTables()
    {
        const OpenPage open("multi-region", "Tile");
        open.loadDefaults();
        const auto maximum = [&open](int region, const QString& name) {
            const auto* table = open.tabs->widget(region)->findChild<QTableWidget*>();
            for (int row = 0; row < table->rowCount(); ++row) {
                if (table->item(row, 0)->data(Qt::UserRole).toString() == name)
                    return toInteger(
                               table->item(row, 1)->data(Qt::UserRole).value<FeatureInfo>().maximum)
                        .value_or(-1);
            }
            return std::int64_t{-2};
        };
        // Region 1 shares its row with region 0 and must not grow into region 3's.
        QCOMPARE(maximum(1, "SubRegionHeight"), std::int64_t{980 - 10});
        QCOMPARE(maximum(2, "SubRegionWidth"), std::int64_t{1332 - 40 - (1332 - 40) % 8});
        open.page->findChild<QComboBox*>()->setCurrentText("Free");
        QCOMPARE(maximum(1, "SubRegionHeight"), std::int64_t{1944 - 10});
    }

    void followsOthers()
    {
        OpenPage open("multi-region", "Free");
        QSignalSpy enabled(open.page.get(), &MultiROIWidget::multipleRegionsEnabled);
        open.camera->writeAsOtherClient("MultipleRegionEnable", true);
        open.camera->writeAsOtherClient("SubRegionSelector", "Region2");
        open.camera->writeAsOtherClient("SubRegionMode", "On");
        open.settle();
        QCOMPARE(enabled.size(), 1);
        QVERIFY(open.page->findChild<QCheckBox*>()->isChecked());
        QCOMPARE(open.tabs->currentIndex(), 2);
        QVERIFY(open.label->isRegionShown(2));
        // Elsewhere than where the page looks.
        open.camera->writeAsOtherClient("SubRegionSelector", "Region1");
        open.camera->writeAsOtherClient("SubRegionMode", "On");
        open.camera->writeAsOtherClient("SubRegionSelector", "Region2");
        open.settle();
        open.settle();
        QVERIFY(open.label->isRegionShown(1));
        QCOMPARE(open.contradiction(), QString());
        open.page->camIsStreaming(true);
        QVERIFY(!open.button(0)->isEnabled() && !open.button(1)->isEnabled());
        open.camera->writeAsOtherClient("BinningHorizontal", 2);
        open.settle();
        QVERIFY(open.page->findChild<QWidget*>("frameWarning")->isVisible());
        QVERIFY(!open.tabs->isVisible());
    }

    void deletedUnderABox_data()
    {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<int>("region");
        QTest::newRow("subsequent") << QByteArray("Horizontal") << 1;
        QTest::newRow("whole column") << QByteArray("Tile") << 1;
        QTest::newRow("corner") << QByteArray("Tile") << 3;
        QTest::newRow("defaults") << QByteArray("Free") << -1;
    }

    void deletedUnderABox()
    {
        QFETCH(QByteArray, mode);
        QFETCH(int, region);
        OpenPage open("multi-region", mode);
        open.loadDefaults();
        UnderBox box([&open] { open.page.reset(); });
        if (region < 0)
            open.page->loadDefaultConfiguration();
        else
            open.button(region)->click();
        QVERIFY(!open.page);
        QCOMPARE(open.active(4), QString("0123"));
    }

    void changedUnderABox()
    {
        OpenPage open("multi-region", "Horizontal");
        open.loadDefaults();
        {
            UnderBox box([&open] { open.writeAsOther("MultipleRegionArrangement", "Free"); });
            open.button(1)->click();
        }
        open.settle();
        QCOMPARE(open.active(), QString("0123"));
        QCOMPARE(open.contradiction(), QString());
        open.page->findChild<QComboBox*>()->setCurrentText("Tile");
        {
            UnderBox box([&open] { open.page->hide(); });
            open.button(1)->click();
        }
        open.camera->journal().clear();
        open.settle();
        QVERIFY(open.camera->journal().writes().empty());
        QCOMPARE(open.active(), QString("0123"));
        open.page->show();
        open.settle();
        QCOMPARE(open.contradiction(), QString());
        open.page->setFeatureValue(1, -1, "SubRegionMode", "Off");
        open.page->setFeatureValue(3, -1, "SubRegionMode", "Off");
        {
            UnderBox box([&open] {
                open.writeAsOther("SubRegionSelector", "Region1");
                open.writeAsOther("SubRegionMode", "Off");
            });
            open.button(1)->click();
            QCOMPARE(box.texts.size(), 1);
        }
        open.settle();
        QCOMPARE(open.active(), QString("02"));
        QCOMPARE(open.contradiction(), QString());
    }

    void loadsOnceAndWhileStreaming()
    {
        OpenPage open("multi-region", "Free");
        open.page->camIsStreaming(true);
        UnderBox box([&open] { open.page->loadDefaultConfiguration(); }, "Yes");
        open.page->loadDefaultConfiguration();
        QCOMPARE(box.texts.size(), 1);
        QCOMPARE(open.active(), QString("0123"));
    }

    /// What cannot be selected is neither written nor shown with another region's values.
    void refusedSelector()
    {
        OpenPage open("multi-region", "Free");
        open.loadDefaults();
        const QRect first = open.onCamera(0);
        const QRect second = open.onCamera(1);
        open.camera->failures().add("SubRegionSelector", sim::Operation::SetValue,
                                    sim::Failure::refuse());
        open.page->saveNewRegionGeometry(1, {0, 0, 160, 160});
        open.page->setFeatureValue(1, -1, "SubRegionMode", "Off");
        open.button(2)->click();
        QCOMPARE(open.active(), QString("0123"));
        QCOMPARE(open.onCamera(0), first);
        QCOMPARE(open.onCamera(1), second);
        QCOMPARE(open.label->regionRectangle(1), second);
        QVERIFY(open.button(2)->isChecked());
        QVERIFY(open.log.contains("Set 'SubRegionSelector' = 'Region1' failed!"));
        QVERIFY(
            open.log.contains("SubRegion: 1, Saving feature 'SubRegionMode' to value=Off failed."));
    }

    /// Cameras that notify of each registration, and late, keep no page busy.
    void restsWhateverTheCameraNotifies_data()
    {
        QTest::addColumn<bool>("synchronous");
        QTest::newRow("at once") << true;
        QTest::newRow("later") << false;
    }

    void restsWhateverTheCameraNotifies()
    {
        QFETCH(bool, synchronous);
        const OpenPage open("multi-region", "Free");
        open.loadDefaults();
        auto settings = synchronous ? sim::NotificationSettings::synchronous()
                                    : sim::NotificationSettings::asynchronous();
        settings.onRegistration = true;
        settings.lateAfterUnregistration = true;
        open.camera->setNotifications(settings);
        open.page->hide();
        open.page->show();
        for (int i = 0; i < 4; ++i)
            open.settle();
        open.camera->journal().clear();
        for (int i = 0; i < 3; ++i)
            open.settle();
        QCOMPARE(open.camera->journal().writes().size(), 0u);
        // A region switched by another client in the second of a change of tabs is not lost.
        open.tabs->setCurrentIndex(3);
        open.writeAsOther("SubRegionSelector", "Region1");
        open.writeAsOther("SubRegionMode", "Off");
        open.writeAsOther("SubRegionSelector", "Region3");
        for (int i = 0; i < 3; ++i)
            open.settle();
        QCOMPARE(open.contradiction(), QString());
        QCOMPARE(open.tabs->currentIndex(), 3);
        // Nor is a selection made while nobody looked.
        open.page->hide();
        open.writeAsOther("SubRegionSelector", "Region2");
        open.page->show();
        QCOMPARE(open.tabs->currentIndex(), 2);
    }

    void refusals()
    {
        OpenPage open("multi-region", "Free");
        open.camera->failures().add("SubRegionMode", sim::Operation::SetValue,
                                    sim::Failure::refuse());
        open.button(1)->click();
        QVERIFY(!open.button(1)->isChecked());
        QVERIFY(!open.label->isRegionShown(1));
    }

    void needsRegions()
    {
        const MessageHandlerGuard guard;
        const auto camera = sim::createCamera("plain");
        const MultiROIWidget page(featureList(*camera), nullptr);
        QVERIFY(page.accessibleName().isEmpty());
    }

    void manyRegions()
    {
        const OpenPage open("multi-region-256", "Free");
        QCOMPARE(open.tabs->count(), 256);
        open.loadDefaults();
        QCOMPARE(open.active(), QString("0123"));
    }

    /// Whatever is done, nothing is written between press and release, a drag makes no overlap,
    /// and in the end all agree with the camera.
    void keepsInStep_data()
    {
        QTest::addColumn<QByteArray>("mode");
        for (const char* mode : {"Vertical", "Horizontal", "Tile", "Free"})
            QTest::newRow(mode) << QByteArray(mode);
    }

    void keepsInStep()
    {
        QFETCH(QByteArray, mode);
        const OpenPage open("multi-region", mode);
        open.loadDefaults();
        QRandomGenerator random(2);
        Answers answers({});
        for (int step = 0; step < 60; ++step) {
            const int action = random.bounded(8);
            const int region = random.bounded(4);
            if (action == 0) {
                // Escape keeps what the arrangement needs; kept buttons without a place go back.
                open.button(region)->click();
                if (!open.isOn(region) && open.button(region)->isChecked())
                    open.button(region)->click();
                if (open.isOn(region) && !open.button(region)->isChecked())
                    open.page->setFeatureValue(region, -1, "SubRegionMode", "Off");
            } else if (action == 1) {
                open.page->setFeatureValue(region, -1, "SubRegionHeight", random.bounded(16, 400));
            } else if (action == 2 && mode == "Free") {
                open.camera->writeAsOtherClient("SubRegionWidth", 8 * random.bounded(2, 60));
            } else {
                dragSomewhere(open, random);
            }
            open.settle();
            open.settle();
            const QString wrong = open.contradiction() + brokenRule(open, mode);
            QVERIFY2(wrong.isEmpty(), qPrintable(QString("step %1: %2").arg(step).arg(wrong)));
        }
        QVERIFY(open.log.isEmpty() || open.log[0].contains("minimum size"));
    }

private:
    static int overlaps(const OpenPage& open)
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
    static QString brokenRule(const OpenPage& open, const QString& mode)
    {
        QVector<int> active;
        for (int region = 0; region < 4; ++region) {
            if (open.isOn(region))
                active << region;
        }
        for (const ConstraintGroup& group : constraintGroups(arrangementMode(mode), active)) {
            for (const int member : group.members) {
                if (spanOf(open.onCamera(member), group.axis())
                    != spanOf(open.onCamera(group.master()), group.axis()))
                    return QString("%1 is not in line with %2").arg(member).arg(group.master());
            }
        }
        return {};
    }

    static void dragSomewhere(const OpenPage& open, QRandomGenerator& random)
    {
        const QSize image = open.label->imageSize();
        const auto anywhere
            = [&] { return QPoint(random.bounded(image.width()), random.bounded(image.height())); };
        const QPoint from = anywhere();
        const QPoint to = anywhere();
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

    const MessageHandlerGuard m_guard;
};

QTEST_MAIN(MultiROIWidgetTest)
#include "MultiROIWidgetTest.moc"
