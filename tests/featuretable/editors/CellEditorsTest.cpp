#include "DataTable.h"
#include "TestEvents.h"
#include "featuretable/FeaturesTable.h"

#include <QComboBox>

using sim::Failure;
using sim::Operation;
using Written = QVector<sim::Value>;

namespace {

void tabTwice(FeaturesTable& f, QWidget* control)
{
    type("42", Qt::Key_Tab)(f, control);
    QVERIFY(f.slider()->hasFocus());
    QTest::keyClick(f.slider(), Qt::Key_Tab);
}

void stepSlider(FeaturesTable& f, QWidget* control)
{
    f.slider()->setFocus();
    QTest::keyClick(f.slider(), Qt::Key_Right);
    leave(f, control);
}

void chooseFromList(FeaturesTable&, QWidget* control)
{
    auto* box = qobject_cast<QComboBox*>(control);
    box->showPopup();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(box->view(), key);
}

Act typeAndLeave(const char* text)
{
    return [=](FeaturesTable& f, QWidget* control) {
        type(text, Qt::Key_unknown)(f, control);
        leave(f, control);
    };
}

} // namespace

/// The editors in the table's cells, by mouse and keyboard.
class CellEditorsTest : public QObject
{
    Q_OBJECT

private slots:
    /// A decimal comma must not get in the way anywhere.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

    void choosesEditors_data()
    {
        const DataTable row([](const QString& feature, const QByteArray& control, bool slider) {
            const FeaturesTable f;
            const QWidget* focused = f.open(feature);
            QVERIFY2(focused->inherits(control.constData()), focused->metaObject()->className());
            QCOMPARE(f.features->isEditing(), control != "QTableWidget");
            if (!f.editor())
                return;
            QCOMPARE(f.slider() != nullptr, slider);
            QVERIFY(!focused->accessibleName().isEmpty());
            const QSize cell = f.table->visualItemRect(f.item(feature)).size();
            QCOMPARE(f.editor()->size(), cell);
            QVERIFY(qMax(focused->height(), focused->sizeHint().height()) <= cell.height());
        });
        row("integer", "Count", "QSpinBox", true);
        row("beyond 32 bits", "Wide", "QDoubleSpinBox", true);
        row("beyond 2^53", "Unlimited", "QLineEdit", false);
        row("exposure", "ExposureTime", "QLineEdit", true);
        row("read-only", "Model", "QTableWidget", false);
        row("raw", "Bytes", "QTableWidget", false);
    }
    void choosesEditors() { runRow(); }

    void edits_data()
    {
        const DataTable row([](const QString& feature, const Act& act, const Written& written) {
            const bool staysOpen = QByteArray(QTest::currentDataTag()).endsWith("stays open");
            FeaturesTable f;
            QWidget* control = f.open(feature);
            QSignalSpy active(f.features, &FeaturesTableWidget::cellEditorActive);
            QSignalSpy logged(f.features, &FeaturesTableWidget::loggingMessage);
            QPointer<DelegateWidget> editor = f.editor();
            act(f, control);
            QCOMPARE(f.features->isEditing(), staysOpen);
            QCOMPARE(f.writes(), int(written.size()));
            QCOMPARE(logged.count(), 0);
            if (staysOpen)
                return;
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!editor);
            QVERIFY(active.count() >= int(written.size()) + 1); // handled, closed
            QCOMPARE(active.last().at(0).toBool(), false);
            if (!f.outside->hasFocus())
                QCOMPARE(QApplication::focusWidget(), f.table);
            if (written.isEmpty())
                return;
            QCOMPARE(f.camera.journal().writes().at(0).value, written.first());
            // What was written is what the next refresh shows.
            const QVariant shown = f.shown(feature);
            f.features->updateFeatures({feature});
            if (feature != "Run")
                QCOMPARE(f.shown(feature), shown);
            QCOMPARE(f.writes(), 1);
        });
        row("integer", "Count", type("42"), {42});
        row("integer, arrow", "Count", keys({Qt::Key_Up, Qt::Key_Return}), {11});
        row("integer, by way of the slider", "Count", tabTwice, {42});
        row("slider by key", "Count", stepSlider, {11});
        row("text, tab", "Text", type("new", Qt::Key_Tab), {"new"});
        row("beyond 32 bits", "Wide", type("1099511627775"), {1099511627775});
        row("64 bits", "Unlimited", type("-9007199254740993"), {-9007199254740993});
        row("shown within its range", "Stale", keys({Qt::Key_Return}), {1000});
        row("looks the same", "Gain", type("1.0000000000000002"), {1.0000000000000002});
        row("float, left", "Gain", typeAndLeave("2.5"), {2.5});
        row("float, comma refused", "Gain", type("1,5"), {15.0});
        row("toggle", "Flag", keys({Qt::Key_Space}), {true});
        row("entry by keys", "ModeSelector", keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}),
            {"Third"});
        row("entry from the list", "ModeSelector", chooseFromList, {"Third"});
        row("register", "Register", type("c0ffee"), {0xC0FFEE});
        row("more than eight digits, stays open", "Register", keys({Qt::Key_Return}), {});
        row("eight digits left", "Register", keys({Qt::Key_End, Qt::Key_Backspace, Qt::Key_Return}),
            {0x1C0FFEE0});
        row("register out of range, stays open", "Register", type("f"), {});
        row("half an address, stays open", "Address", type("10.0."), {});
        row("command by key", "Run", keys({Qt::Key_Return}), {sim::Value()});
        row("command left", "Run", leave, {});
        row("nothing typed", "Count", keys({Qt::Key_Return}), {});
        row("only looked at", "Gain", leave, {});
        row("within its range, looked at", "Stale", leave, {});
        row("the same", "Gain", type("1.0"), {});
        row("cancelled", "Text", type("new", Qt::Key_Escape), {});
        row("cancelled entry", "ModeSelector", keys({Qt::Key_Down, Qt::Key_Escape}), {});
        row("out of range, stays open", "Gain", type("25"), {});
        row("no number, left", "Gain", typeAndLeave("-"), {});
        row("integer out of range, stays open", "Count", type("7000"), {});
        row("beyond 64 bits, stays open", "Unlimited", type("9999999999999999999"), {});
    }
    void edits() { runRow(); }

    void runsACommandTwice()
    {
        FeaturesTable f;
        for (int run = 1; run <= 3; ++run) {
            click(f, f.open("Run"));
            QCOMPARE(f.writes(), run);
            if (run == 2)
                f.features->updateFeatures({"Run"});
        }
        QCOMPARE(int(f.camera.journal().count(Operation::RunCommand)), 3);
    }

    void logsARefusedWrite()
    {
        FeaturesTable f;
        f.camera.failures().add("Text", Operation::SetValue, Failure::refuse());
        QSignalSpy logged(f.features, &FeaturesTableWidget::loggingMessage);
        type("%1 %2")(f, f.open("Text"));
        QCOMPARE(logged.count(), 1);
        QCOMPARE(int(logged.at(0).at(0).value<ZebViewerLogCategory>()), 2);
        QCOMPARE(logged.at(0).at(1).toString(),
                 QString("Saving feature 'Text' to value=%1 %2 failed."));
        QCOMPARE(f.shown("Text"), QVariant("%1 %2"));
        leave(f, f.open("Text"));
        QCOMPARE(f.writes(), 1);
        keys({Qt::Key_Return})(f, f.open("Text")); // tried again
        QCOMPARE(logged.count(), 2);
        f.features->updateFeatures({"Text"});
        QCOMPARE(f.shown("Text"), QVariant("old"));
        QCOMPARE(f.writes(), 2);
    }

    void endsFromOutside_data()
    {
        const DataTable row([](const char* typed, const Act& end, int writes) {
            FeaturesTable f;
            QWidget* control = f.open("Count");
            type(typed, Qt::Key_unknown)(f, control);
            QPointer<DelegateWidget> editor = f.editor();
            end(f, control);
            QTRY_VERIFY(!editor);
            QTest::qWait(60); // a slider's announcements
            QCOMPARE(f.writes(), writes);
        });
        const Act hide = [](FeaturesTable& f, QWidget*) { f.features->hide(); };
        const Act deactivate = [](FeaturesTable&, QWidget*) { QApplication::setActiveWindow({}); };
        const Act ask = [](FeaturesTable& f, QWidget*) { emit f.features->closingWidget(); };
        const Act askWhenMoved = [=](FeaturesTable& f, QWidget* control) {
            const QSignalBlocker held(f.editor());
            QTest::keyClick(f.slider(), Qt::Key_Right);
            ask(f, control);
        };
        // The owner finishes before a drag on its label begins.
        row(
            "finished", "42", [](FeaturesTable& f, QWidget*) { f.features->finishEditing(); }, 1);
        row("hidden", "42", hide, 1);
        // The field goes back to a number on the way to the one that was meant.
        row("left for another window, out of range", "7000", deactivate, 0);
        row("closed", "42", ask, 0);
        row("closed after a move", "42", askWhenMoved, 0);
        row(
            "table deleted", "42", [](FeaturesTable& f, QWidget*) { delete f.features; }, 0);
    }
    void endsFromOutside() { runRow(); }

    void limitsTheRateOfASlider()
    {
        FeaturesTable f;
        f.open("Count");
        auto* slider = f.slider();
        const int center = slider->height() / 2;
        press(slider, {slider->transform(slider->value()), center});
        QElapsedTimer held;
        held.start();
        int x = 10;
        while (f.writes() < 5 && held.elapsed() < 5000) {
            sendMouse(slider, QEvent::MouseMove, {x = (x + 7) % slider->width(), center});
            QTest::qWait(2);
        }
        const int allowed = int(held.elapsed()) / 49 + 1; // timers keep to a millisecond
        QVERIFY2(f.writes() == 5 && allowed >= 5, qPrintable(QString::number(allowed)));
        // Handled values do not expose the open editor to a refresh.
        const QVariant shown = f.shown("Count");
        f.camera.failures().add("Count", Operation::GetValue, Failure::refuse());
        f.features->updateFeatures({"Count"});
        f.camera.failures().clear();
        QCOMPARE(f.shown("Count"), shown);

        sendMouse(slider, QEvent::MouseMove, {slider->width() / 2, center});
        const int last = f.field()->value();
        QTRY_COMPARE(f.camera.feature("Count").integer(), std::int64_t{last});
        const int writes = f.writes();
        release(slider, {slider->width() / 2, center});
        QVERIFY(!f.features->isEditing());
        QCOMPARE(f.writes(), writes);
        QCOMPARE(f.shown("Count"), QVariant(qint64{last}));
    }
};

QTEST_MAIN(CellEditorsTest)
#include "CellEditorsTest.moc"
