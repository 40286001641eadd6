#include "featuretable/FeaturesTableWidget.h"

#include "SimulatedCamera.h"
#include "TestEvents.h"
#include "features/FeatureManager.h"
#include "featuretable/DelegateWidget.h"
#include "featuretable/DelegateWidgetFactory.h"
#include "featuretable/MyTableWidget.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>
#include <qwt_slider.h>

#include <functional>
#include <memory>

using sim::Failure;
using sim::FloatRange;
using sim::IntegerRange;
using sim::Operation;

namespace {

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;

sim::FeatureDescriptions oneOfEachKind()
{
    return {
        sim::integerFeature("Count", 10).between(IntegerRange(0, 1000, 1)).shown("The Count"),
        sim::floatFeature("Gain", 1.0).between(FloatRange(0.0, 24.0)).measuredIn("dB"),
        sim::floatFeature("ExposureTime", 100.0)
            .between(FloatRange(1.0, 10000.0))
            .describedBy("Time that the sensor is exposed."),
        sim::booleanFeature("Flag"),
        sim::stringFeature("Text", "old"),
        sim::enumFeature("ModeSelector", {"First", "Second", "Third"}),
        sim::integerFeature("Register", 255)
            .represented("HexNumber")
            .between(IntegerRange(0, 0xFFFFFFFF)),
        sim::integerFeature("Address", 1)
            .represented("IPV4Address")
            .between(IntegerRange(0, 0xFFFFFFFF))
            .selectedBy("ModeSelector"),
        sim::integerFeature("Station", 1)
            .represented("MACAddress")
            .between(IntegerRange(0, 0xFFFFFFFFFFFF)),
        sim::integerFeature("Wide", 5).between(IntegerRange(0, std::int64_t{1} << 40)),
        sim::integerFeature("Unlimited", 5),
        sim::integerFeature("Stale", 2000).between(IntegerRange(0, 1000)),
        sim::integerFeature("Steps", 1).represented("Logarithmic").between(IntegerRange(1, 100000)),
        sim::commandFeature("Run"),
        sim::stringFeature("Model", "fixed").readOnly(),
        sim::rawFeature("Bytes", {1, 2}),
    };
}

FeatureManager::Wrappers wrap(const sim::Camera& camera)
{
    auto wrappers = FeatureManager::Wrappers::create();
    for (const ZebCPP::FeaturePtr& feature : camera.features())
        wrappers->append(std::make_shared<ZebFeatureWrapper>(feature));
    return wrappers;
}

/// A window with a table over all features and a field besides.
struct Fixture
{
    Fixture()
        : camera(oneOfEachKind())
        , manager(wrap(camera))
        , names(manager.GetFeatureNames())
        , window(std::make_unique<QWidget>())
        , outside(new QLineEdit)
        , features(new FeaturesTableWidget(names, &manager, window.get()))
        , table(features->findChild<MyTableWidget*>(QStringLiteral("tblFeatures")))
    {
        auto* layout = new QVBoxLayout(window.get());
        layout->addWidget(outside);
        layout->addWidget(features);
        window->resize(500, 600);
        window->show();
        QApplication::setActiveWindow(window.get());
        table->setFocus();
        camera.journal().clear();
    }

    QTableWidgetItem* item(const QString& name, int column = valueColumn) const
    {
        return table->item(names.indexOf(name), column);
    }
    void doubleClick(const QString& name, int column = valueColumn) const
    {
        const QPoint center = table->visualItemRect(item(name, column)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, center);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, center);
    }
    /// The control that has the keyboard.
    QWidget* open(const QString& name) const
    {
        doubleClick(name);
        return QApplication::focusWidget();
    }
    DelegateWidget* editor() const { return table->findChild<DelegateWidget*>(); }
    int writes() const { return int(camera.journal().writes().size()); }
    sim::Value written() const { return camera.journal().writes().at(0).value; }

    mutable sim::Camera camera;
    FeatureManager manager;
    QStringList names;
    std::unique_ptr<QWidget> window;
    QLineEdit* outside;
    FeaturesTableWidget* features;
    MyTableWidget* table;
};

using Act = std::function<void(Fixture&, QWidget* control)>;

Act type(const char* text, Qt::Key end = Qt::Key_Return)
{
    return [=](Fixture&, QWidget* control) {
        QTest::keyClick(control, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(control, Qt::Key_Delete);
        QTest::keyClicks(control, QString::fromUtf8(text));
        if (end != Qt::Key_unknown)
            QTest::keyClick(control, end);
    };
}

Act typeAndLeave(const char* text)
{
    return [=](Fixture& f, QWidget* control) {
        type(text, Qt::Key_unknown)(f, control);
        f.outside->setFocus();
    };
}

Act keys(std::initializer_list<Qt::Key> pressed)
{
    return [keys = QVector<Qt::Key>(pressed)](Fixture&, QWidget* control) {
        for (const Qt::Key key : keys)
            QTest::keyClick(control, key);
    };
}

void chooseFromList(Fixture&, QWidget* control)
{
    auto* box = qobject_cast<QComboBox*>(control);
    box->showPopup();
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
}

void click(Fixture&, QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton, {}, {10, control->height() / 2});
}

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(sim::Value)

class FeaturesTableWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    // A decimal comma must not get in the way anywhere.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
    void declaresItsInterface();
    void fillsTheRows();
    void choosesEditors_data();
    void choosesEditors();
    void writesAnEditOnce_data();
    void writesAnEditOnce();
    void writesNothingElse_data();
    void writesNothingElse();
    void runsACommandTwice();
    void logsARefusedWrite();
    void refreshesWithoutWriting();
    void keepsAnOpenEditor();
    void endsASuspendedRefresh();
    void tellsEditing_data();
    void tellsEditing();
    void closesWithoutWriting_data();
    void closesWithoutWriting();
    void writesWhenHidden_data();
    void writesWhenHidden();
    void limitsTheRateOfASlider();
    void movesALogarithmicSlider();
    void stepsALogarithmicSlider();
    void scrollsOverAnEditor();
    void showsNumbersAsEntries();
    void ignoresForeignRecords();
    void searchesNamesOnly();
    void filtersWithoutReading();
};

void FeaturesTableWidgetTest::declaresItsInterface()
{
    const QMetaObject& meta = FeaturesTableWidget::staticMetaObject;
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        methods.append(QString::fromLatin1(meta.method(index).methodSignature()));
    const QStringList expected{
        QStringLiteral("closingWidget()"),
        QStringLiteral("loggingMessage(ZebViewerLogCategory,QString)"),
        QStringLiteral("cellEditorActive(bool)"),
        QStringLiteral("updateFeatures(QStringList)"),
        QStringLiteral("onDataChanged(QModelIndex,QModelIndex,QVector<int>)"),
        QStringLiteral("onCellEdit(int,int)"),
        QStringLiteral("onClosingEditor()"),
    };
    QCOMPARE(methods, expected);
}

void FeaturesTableWidgetTest::fillsTheRows()
{
    const Fixture f;
    QVERIFY(QMetaType::type("FeatureInfo") != QMetaType::UnknownType);
    QCOMPARE(f.table->rowCount(), f.names.size());
    QCOMPARE(f.table->horizontalHeaderItem(nameColumn)->text(), QStringLiteral("Feature Name"));
    QCOMPARE(f.table->horizontalHeaderItem(valueColumn)->text(), QStringLiteral("Value"));

    QCOMPARE(f.item("Count", nameColumn)->text(), QStringLiteral("The Count"));
    QCOMPARE(f.item("Count", nameColumn)->foreground().color(), QColor("#006400"));
    QCOMPARE(f.item("Model", nameColumn)->foreground().color(), QColor("grey"));
    QVERIFY(!(f.item("Count", nameColumn)->flags() & Qt::ItemIsEditable));
    QVERIFY(f.item("Count")->flags() & Qt::ItemIsEditable);
    QVERIFY(!(f.item("Model")->flags() & Qt::ItemIsEditable));
    QCOMPARE(f.item("Count")->data(Qt::DisplayRole), QVariant(qint64{10}));
    QCOMPARE(int(f.item("Flag")->data(Qt::DisplayRole).type()), int(QVariant::Bool));
    QCOMPARE(f.item("Count", nameColumn)->toolTip(), QStringLiteral("Count"));
    QCOMPARE(f.item("ModeSelector", nameColumn)->toolTip(),
             QStringLiteral("ModeSelector<p><b>Selected features:</b><br>Address</p>"));
    QVERIFY(f.item("ExposureTime")->toolTip().contains("Time that the sensor is exposed."));
    QVERIFY(f.item("ExposureTime")->toolTip().contains("<b>Maximum:</b> 10000"));
    QCOMPARE(f.item("Gain")->data(Qt::AccessibleTextRole), QVariant("Gain: 1 dB"));

    FeatureManager empty({});
    const FeaturesTableWidget none({}, &empty, nullptr);
    QCOMPARE(none.findChild<MyTableWidget*>()->rowCount(), 0);
    QCOMPARE(none.findChild<MyTableWidget*>()->columnCount(), 2);
}

void FeaturesTableWidgetTest::choosesEditors_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<bool>("slider");
    QTest::newRow("integer") << "Count" << QByteArray("QSpinBox") << true;
    QTest::newRow("beyond 32 bits") << "Wide" << QByteArray("QDoubleSpinBox") << true;
    QTest::newRow("beyond 2^53") << "Unlimited" << QByteArray("QLineEdit") << false;
    QTest::newRow("float") << "Gain" << QByteArray("QLineEdit") << false;
    QTest::newRow("exposure") << "ExposureTime" << QByteArray("QLineEdit") << true;
    QTest::newRow("boolean") << "Flag" << QByteArray("QCheckBox") << false;
    QTest::newRow("text") << "Text" << QByteArray("QLineEdit") << false;
    QTest::newRow("enumeration") << "ModeSelector" << QByteArray("QComboBox") << false;
    QTest::newRow("register") << "Register" << QByteArray("QLineEdit") << false;
    QTest::newRow("command") << "Run" << QByteArray("QPushButton") << false;
    QTest::newRow("read-only") << "Model" << QByteArray("QTableWidget") << false;
    QTest::newRow("raw") << "Bytes" << QByteArray("QTableWidget") << false;
}

void FeaturesTableWidgetTest::choosesEditors()
{
    QFETCH(QString, feature);
    QFETCH(QByteArray, control);
    const Fixture f;
    QWidget* focused = f.open(feature);
    QVERIFY2(focused->inherits(control.constData()), focused->metaObject()->className());
    QCOMPARE(f.features->isEditing(), control != "QTableWidget");
    if (!f.editor())
        return;
    QTEST(f.editor()->findChild<QwtSlider*>() != nullptr, "slider");
    QVERIFY(!focused->accessibleName().isEmpty());
    const QSize cell = f.table->visualItemRect(f.item(feature)).size();
    QCOMPARE(f.editor()->size(), cell);
    QVERIFY(focused->height() <= cell.height());
    QVERIFY(focused->sizeHint().height() <= cell.height());
}

void FeaturesTableWidgetTest::writesAnEditOnce_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<Act>("act");
    QTest::addColumn<sim::Value>("written");
    const auto row
        = [](const char* name, const char* feature, const Act& act, const sim::Value& value) {
              QTest::newRow(name) << QString(feature) << act << value;
          };
    const std::int64_t wide = (std::int64_t{1} << 40) - 1;
    row("integer", "Count", type("42"), 42);
    row("integer, left", "Count", typeAndLeave("42"), 42);
    row("integer, arrow", "Count", keys({Qt::Key_Up, Qt::Key_Return}), 11);
    row("text, tab", "Text", type("new", Qt::Key_Tab), "new");
    row(
        "integer, two tabs", "Count",
        [](Fixture& f, QWidget* control) {
            type("42", Qt::Key_Tab)(f, control);
            QVERIFY(f.features->isEditing()); // the slider has the keyboard
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        },
        42);
    row("beyond 32 bits", "Wide", type("1099511627775"), wide);
    row("64 bits", "Unlimited", type("-9007199254740993"), -9007199254740993);
    row("64 bits, near the present", "Unlimited", type("6"), 6);
    row("shown within its range", "Stale", keys({Qt::Key_Return}), 1000);
    row("one that looks the same", "Gain", type("1.0000000000000002"), 1.0000000000000002);
    row("float", "Gain", type("2.5"), 2.5);
    row("float, left", "Gain", typeAndLeave("2.5"), 2.5);
    row("float, comma refused", "Gain", type("1,5"), 15.0);
    row("exponent", "ExposureTime", type("1e3"), 1000.0);
    row("toggle", "Flag", keys({Qt::Key_Space}), true);
    row("toggle by mouse", "Flag", click, true);
    row("text", "Text", type("new %1"), "new %1");
    row("empty text", "Text", type(""), "");
    row("entry by keys", "ModeSelector", keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}),
        "Third");
    row("entry from the list", "ModeSelector", chooseFromList, "Third");
    row("register", "Register", type("c0ffee"), 0xC0FFEE);
    row("address", "Address", type("192.168.10.2"), 0xC0A80A02);
    row("station", "Station", type("00-0A:1b-2C:3d-4E"), 0x000A1B2C3D4E);
    row("command", "Run", click, {});
    row("command by key", "Run", keys({Qt::Key_Return}), {});
    row(
        "slider by key", "Count",
        [](Fixture& f, QWidget*) {
            auto* slider = f.editor()->findChild<QwtSlider*>();
            slider->setFocus();
            QTest::keyClick(slider, Qt::Key_Right);
            f.outside->setFocus();
        },
        11);
}

void FeaturesTableWidgetTest::writesAnEditOnce()
{
    QFETCH(QString, feature);
    QFETCH(Act, act);
    Fixture f;
    QWidget* control = f.open(feature);
    QSignalSpy active(f.features, &FeaturesTableWidget::cellEditorActive);
    QSignalSpy logged(f.features, &FeaturesTableWidget::loggingMessage);
    QPointer<DelegateWidget> editor = f.editor();
    act(f, control);
    QVERIFY(!f.features->isEditing());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(!editor);
    QCOMPARE(f.writes(), 1);
    QTEST(f.written(), "written");
    QCOMPARE(logged.count(), 0);
    QVERIFY(active.count() >= 2); // handled, closed
    QCOMPARE(active.last().at(0).toBool(), false);
    if (!f.outside->hasFocus())
        QCOMPARE(QApplication::focusWidget(), f.table);
    // What was written is what the next refresh shows.
    const QVariant shown = f.item(feature)->data(Qt::DisplayRole);
    f.features->updateFeatures({feature});
    if (feature != "Run")
        QCOMPARE(f.item(feature)->data(Qt::DisplayRole), shown);
    QCOMPARE(f.writes(), 1);
}

void FeaturesTableWidgetTest::writesNothingElse_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<Act>("act");
    QTest::addColumn<bool>("open");
    const auto row = [](const char* name, const char* feature, const Act& act, bool open) {
        QTest::newRow(name) << QString(feature) << act << open;
    };
    const Act leave = [](Fixture& f, QWidget*) { f.outside->setFocus(); };
    row("nothing typed", "Count", keys({Qt::Key_Return}), false);
    row("only looked at", "Gain", leave, false);
    row("shown within its range", "Stale", leave, false);
    row("the same", "Gain", type("1.0"), false);
    row("cancelled", "Text", type("new", Qt::Key_Escape), false);
    row("cancelled entry", "ModeSelector", keys({Qt::Key_Down, Qt::Key_Escape}), false);
    row("command left", "Run", leave, false);
    row("out of range", "Gain", type("25"), true);
    row("out of range, left", "Gain", typeAndLeave("25"), false);
    row("integer out of range", "Count", type("7000"), true);
    row("integer out of range, left", "Count", typeAndLeave("7000"), false);
    row("below the smallest", "Steps", type("0"), true);
    row("no number, left", "Gain", typeAndLeave("-"), false);
    row("half an address", "Address", type("10.0."), true);
    row("half an address, left", "Address", typeAndLeave("10.0."), false);
    row("empty register, left", "Register", typeAndLeave(""), false);
    row("letters in a number", "Count", typeAndLeave("abc"), false);
    row("beyond 64 bits, left", "Unlimited", typeAndLeave("9999999999999999999"), false);
}

void FeaturesTableWidgetTest::writesNothingElse()
{
    QFETCH(QString, feature);
    QFETCH(Act, act);
    Fixture f;
    act(f, f.open(feature));
    QTEST(f.features->isEditing(), "open");
    QCOMPARE(f.writes(), 0);
}

void FeaturesTableWidgetTest::runsACommandTwice()
{
    Fixture f;
    for (int run = 1; run <= 3; ++run) {
        click(f, f.open("Run"));
        QCOMPARE(f.writes(), run);
        if (run == 2)
            f.features->updateFeatures({"Run"});
    }
    QCOMPARE(int(f.camera.journal().count(Operation::RunCommand)), 3);
    f.camera.failures().add("Run", Operation::RunCommand, Failure::refuse());
    QSignalSpy logged(f.features, &FeaturesTableWidget::loggingMessage);
    click(f, f.open("Run"));
    QCOMPARE(logged.at(0).at(1).toString(),
             QStringLiteral("Saving feature 'Run' to value=0 failed."));
}

void FeaturesTableWidgetTest::logsARefusedWrite()
{
    Fixture f;
    f.camera.failures().add("Text", Operation::SetValue, Failure::refuse());
    QSignalSpy logged(f.features, &FeaturesTableWidget::loggingMessage);
    type("%1 %2")(f, f.open("Text"));
    QCOMPARE(logged.count(), 1);
    QCOMPARE(int(logged.at(0).at(0).value<ZebViewerLogCategory>()), 2);
    QCOMPARE(logged.at(0).at(1).toString(),
             QStringLiteral("Saving feature 'Text' to value=%1 %2 failed."));
    QCOMPARE(f.item("Text")->text(), QStringLiteral("%1 %2"));
    f.open("Text");
    f.outside->setFocus(); // looked at
    QCOMPARE(f.writes(), 1);
    keys({Qt::Key_Return})(f, f.open("Text")); // tried again
    QCOMPARE(logged.count(), 2);
    f.features->updateFeatures({"Text"});
    QCOMPARE(f.item("Text")->text(), QStringLiteral("old"));
    QCOMPARE(f.writes(), 2);
}

void FeaturesTableWidgetTest::refreshesWithoutWriting()
{
    Fixture f;
    QSignalSpy active(f.features, &FeaturesTableWidget::cellEditorActive);
    f.camera.writeAsOtherClient("Count", 77);
    f.camera.modify("Text", [](auto& text) { text.readOnly(); });
    f.camera.modify("Gain", [](auto& gain) { gain.between(FloatRange(0.0, 2.0)); });
    f.features->updateFeatures(f.names + QStringList{"NoSuchFeature"});
    QCOMPARE(f.item("Count")->data(Qt::DisplayRole), QVariant(qint64{77}));
    QCOMPARE(f.item("Text", nameColumn)->foreground().color(), QColor("grey"));
    QVERIFY(!(f.item("Text")->flags() & Qt::ItemIsEditable));
    QCOMPARE(f.writes(), 0);
    QCOMPARE(active.count(), 0);
    QCOMPARE(int(f.camera.journal().count(Operation::GetUnit)), 0);
    QVERIFY(f.item("Gain")->toolTip().contains("<b>Maximum:</b> 2<"));
    f.camera.writeAsOtherClient("Gain", 1.0000000000000002);
    f.features->updateFeatures({"Gain"});
    QVERIFY(f.item("Gain")->data(Qt::DisplayRole).toDouble() == 1.0000000000000002);
    // An editor opened afterwards keeps to the new range.
    type("2.5")(f, f.open("Gain"));
    QVERIFY(f.features->isEditing());
}

void FeaturesTableWidgetTest::keepsAnOpenEditor()
{
    Fixture f;
    auto* field = qobject_cast<QLineEdit*>(f.open("Text"));
    type("half", Qt::Key_unknown)(f, field);
    f.camera.writeAsOtherClient("Text", "other");
    f.features->updateFeatures({"Text"});
    QCOMPARE(f.item("Text")->text(), QStringLiteral("old"));
    f.table->model()->dataChanged(f.table->currentIndex(), f.table->currentIndex());
    QCOMPARE(field->text(), QStringLiteral("half"));
    QTest::keyClick(field, Qt::Key_Escape);
    f.features->updateFeatures({"Text"});
    QCOMPARE(f.item("Text")->text(), QStringLiteral("other"));
}

void FeaturesTableWidgetTest::endsASuspendedRefresh()
{
    Fixture f;
    QSignalSpy active(f.features, &FeaturesTableWidget::cellEditorActive);
    f.doubleClick("Model");
    QCOMPARE(active.last().at(0).toBool(), true); // announced, but nothing opened
    QVERIFY(!f.features->isEditing());
    f.camera.force("Model", "changed");
    f.features->updateFeatures({"Model"});
    QCOMPARE(f.item("Model")->text(), QStringLiteral("changed"));

    // Asked for by name, an editing is announced until a value is handled or the editor closes.
    f.camera.force("Count", 20);
    f.features->onCellEdit(f.names.indexOf("Count"), valueColumn);
    f.features->updateFeatures({"Count"});
    QCOMPARE(f.item("Count")->text(), QStringLiteral("10"));
    f.features->onClosingEditor();
    f.features->updateFeatures({"Count"});
    QCOMPARE(f.item("Count")->text(), QStringLiteral("20"));
    // Another button announces an editor as well, but opens none.
    const QPoint center = f.table->visualItemRect(f.item("Count")).center();
    QTest::mouseDClick(f.table->viewport(), Qt::RightButton, {}, center);
    QCoreApplication::processEvents();
    f.camera.force("Count", 30);
    f.features->updateFeatures({"Count"});
    QCOMPARE(f.item("Count")->text(), QStringLiteral("30"));
}

void FeaturesTableWidgetTest::tellsEditing_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<int>("column");
    QTest::addColumn<QVector<bool>>("states");
    QTest::newRow("first row") << "Count" << valueColumn << QVector<bool>{true, false};
    QTest::newRow("another row") << "Gain" << valueColumn << QVector<bool>{true, true};
    QTest::newRow("first name") << "Count" << nameColumn << QVector<bool>{false};
    QTest::newRow("another name") << "Gain" << nameColumn << QVector<bool>{true};
}

void FeaturesTableWidgetTest::tellsEditing()
{
    QFETCH(QString, feature);
    QFETCH(int, column);
    Fixture f;
    QVector<bool> states;
    connect(f.features, &FeaturesTableWidget::cellEditorActive, this,
            [&states](bool active) { states.append(active); });
    f.doubleClick(feature, column);
    QTEST(states, "states");
    QCOMPARE(f.features->isEditing(), column == valueColumn);
}

void FeaturesTableWidgetTest::closesWithoutWriting_data()
{
    QTest::addColumn<Act>("close");
    QTest::newRow("asked") << Act([](Fixture& f, QWidget*) { emit f.features->closingWidget(); });
    QTest::newRow("table deleted") << Act([](Fixture& f, QWidget*) { delete f.features; });
    QTest::newRow("window deleted") << Act([](Fixture& f, QWidget*) { f.window.reset(); });
    QTest::newRow("hidden, then asked") << Act([](Fixture& f, QWidget*) {
        f.features->hide();
        emit f.features->closingWidget();
    });
    QTest::newRow("moved by slider") << Act([](Fixture& f, QWidget*) {
        auto* slider = f.editor()->findChild<QwtSlider*>();
        const QSignalBlocker held(f.editor());
        QTest::keyClick(slider, Qt::Key_Right);
        emit f.features->closingWidget();
    });
}

void FeaturesTableWidgetTest::closesWithoutWriting()
{
    QFETCH(Act, close);
    Fixture f;
    QWidget* control = f.open("Count");
    type("42", Qt::Key_unknown)(f, control);
    QPointer<DelegateWidget> editor = f.editor();
    close(f, control);
    QTRY_VERIFY(!editor);
    QTest::qWait(60);
    QCOMPARE(f.writes(), 0);
}

void FeaturesTableWidgetTest::writesWhenHidden_data()
{
    QTest::addColumn<bool>("active");
    QTest::newRow("active window") << true;
    QTest::newRow("inactive window") << false;
}

void FeaturesTableWidgetTest::writesWhenHidden()
{
    QFETCH(bool, active);
    Fixture f;
    if (!active)
        QApplication::setActiveWindow(nullptr);
    f.open("Count");
    type("42", Qt::Key_unknown)(f, f.editor()->findChild<QSpinBox*>());
    f.features->hide();
    QTRY_COMPARE(f.writes(), 1);
    QTRY_VERIFY(!f.editor());
    QCOMPARE(f.written(), sim::Value(42));
}

void FeaturesTableWidgetTest::limitsTheRateOfASlider()
{
    Fixture f;
    f.open("Count");
    auto* slider = f.editor()->findChild<QwtSlider*>();
    auto* field = f.editor()->findChild<QSpinBox*>();
    const int center = slider->height() / 2;
    press(slider, {slider->width() * 10 / 1000, center});
    QElapsedTimer held;
    held.start();
    int x = 10;
    while (held.elapsed() < 300) {
        sendMouse(slider, QEvent::MouseMove, {x = (x + 7) % slider->width(), center});
        QTest::qWait(2);
    }
    const int allowed = int(held.elapsed()) / 50 + 1;
    QVERIFY2(f.writes() >= 3 && f.writes() <= allowed, qPrintable(QString::number(f.writes())));
    // Handled values do not expose the open editor to a refresh.
    const QVariant shown = f.item("Count")->data(Qt::DisplayRole);
    f.camera.failures().add("Count", Operation::GetValue, Failure::refuse());
    f.features->updateFeatures({"Count"});
    f.camera.failures().clear();
    QCOMPARE(f.item("Count")->data(Qt::DisplayRole), shown);

    sendMouse(slider, QEvent::MouseMove, {slider->width() / 2, center});
    const int last = field->value();
    QTRY_COMPARE(f.camera.feature("Count").integer(), std::int64_t{last});
    const int writes = f.writes();
    release(slider, {slider->width() / 2, center});
    QVERIFY(!f.features->isEditing());
    QCOMPARE(f.writes(), writes);
    QCOMPARE(f.item("Count")->data(Qt::DisplayRole), QVariant(qint64{last}));
}

void FeaturesTableWidgetTest::movesALogarithmicSlider()
{
    Fixture f;
    f.open("ExposureTime");
    auto* slider = f.editor()->findChild<QwtSlider*>();
    QVERIFY(std::abs(slider->transform(100.0) - slider->width() / 2) <= 1); // 1 to 10000
    const QPoint handle(slider->transform(100.0), slider->height() / 2);
    drag(slider, handle, {slider->width() * 2, handle.y()});
    QVERIFY(f.writes() >= 1);
    QCOMPARE(f.camera.feature("ExposureTime").number(), 10000.0);
}

void FeaturesTableWidgetTest::stepsALogarithmicSlider()
{
    Fixture f;
    f.open("Steps");
    auto* slider = f.editor()->findChild<QwtSlider*>(QStringLiteral("editorSlider"));
    auto* field = f.editor()->findChild<QSpinBox*>(QStringLiteral("editorField"));
    slider->setFocus();
    for (int expected : {2, 3, 4}) {
        QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(field->value(), expected);
    }
    QTest::keyClick(slider, Qt::Key_Left);
    QCOMPARE(field->value(), 3);
    // The groove moves by pages while it is held; its release finishes.
    const QPoint end(slider->width() - 8, slider->height() / 2);
    press(slider, end);
    QTRY_VERIFY(field->value() > 10);
    const int reached = field->value();
    release(slider, end);
    QVERIFY(!f.features->isEditing());
    QCOMPARE(f.camera.feature("Steps").integer(), std::int64_t{reached});
}

void FeaturesTableWidgetTest::scrollsOverAnEditor()
{
    Fixture f;
    f.window->resize(500, 200);
    f.open("Count");
    auto* slider = f.editor()->findChild<QwtSlider*>();
    const QPointF center = QRectF(slider->rect()).center();
    QWheelEvent wheel(center, slider->mapToGlobal(center.toPoint()), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel); // only these go up to the parents
    QApplication::instance()->notify(slider, &wheel);
    QVERIFY(f.table->verticalScrollBar()->value() > 0);
    QCOMPARE(f.editor()->findChild<QSpinBox*>()->value(), 10);
}

void FeaturesTableWidgetTest::showsNumbersAsEntries()
{
    FeatureInfo info;
    info.writable = true;
    info.enumEntries = {std::int64_t{8}, std::int64_t{12}};
    const std::unique_ptr<DelegateWidget> editor(createDelegateWidget(info, nullptr));
    QCOMPARE(editor->findChild<QComboBox*>("editorEntries")->itemText(1), QStringLiteral("12"));
}

void FeaturesTableWidgetTest::ignoresForeignRecords()
{
    Fixture f;
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("cannot convert to FeatureInfo:"));
    {
        const QSignalBlocker blocker(f.table->model());
        f.item("Count")->setData(Qt::UserRole, QStringLiteral("no record"));
    }
    f.item("Count")->setData(Qt::DisplayRole, 5);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("Cannot create delegate widget for "));
    f.doubleClick("Count");
    f.item("Gain")->setData(Qt::BackgroundRole, QColor(Qt::red));
    QCOMPARE(f.writes(), 0);
}

void FeaturesTableWidgetTest::searchesNamesOnly()
{
    Fixture f;
    f.table->setCurrentCell(0, valueColumn);
    QTest::keyClick(f.table, Qt::Key_O); // the value "old"
    QCOMPARE(f.table->currentRow(), 0);
    f.table->setCurrentCell(0, nameColumn);
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClick(f.table, Qt::Key_G);
    QCOMPARE(f.table->currentRow(), f.names.indexOf("Gain"));
}

void FeaturesTableWidgetTest::filtersWithoutReading()
{
    Fixture f;
    const int width = f.table->columnWidth(nameColumn);
    f.features->setFilter("EXPOSED");
    for (const QString& name : f.names)
        QCOMPARE(f.table->isRowHidden(f.names.indexOf(name)), name != "ExposureTime");
    f.features->grab();
    QCOMPARE(f.table->columnWidth(nameColumn), width);
    f.features->setFilter({});
    QVERIFY(!f.table->isRowHidden(0));
    f.features->grab();
    QCOMPARE(int(f.camera.journal().count()), 0);
}

QTEST_MAIN(FeaturesTableWidgetTest)
#include "FeaturesTableWidgetTest.moc"
