#include "DataTable.h"
#include "featuretable/FeaturesTable.h"

#include <QHeaderView>
#include <QScrollBar>

using sim::Failure;
using sim::Operation;

class FeaturesTableWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    /// A decimal comma must not get in the way anywhere.
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

    void gridIsQts()
    {
        for (const int rows : {4, 40}) {
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                QTableWidget plain;
                MyTableWidget ours(nullptr);
                const auto picture = [=](QTableWidget& widget) {
                    widget.setLayoutDirection(direction);
                    widget.setColumnCount(2);
                    widget.setRowCount(rows);
                    widget.setRowHidden(rows / 4, true);
                    widget.horizontalHeader()->setStretchLastSection(true);
                    widget.resize(300, 200);
                    widget.verticalScrollBar()->setValue(5);
                    return widget.grab().toImage();
                };
                QCOMPARE(picture(ours), picture(plain));
            }
        }
    }

    void showsWhatTheCameraTells()
    {
        FeaturesTable f;
        QCOMPARE(f.table->rowCount(), f.names.size());
        QCOMPARE(f.table->horizontalHeaderItem(nameColumn)->text(), QString("Feature Name"));
        QCOMPARE(f.table->horizontalHeaderItem(valueColumn)->text(), QString("Value"));
        const QTableWidgetItem* const name = f.item("Count", nameColumn);
        QCOMPARE(name->text(), QString("The Count"));
        QCOMPARE(name->foreground().color(), QColor(0x00, 0x64, 0x00));
        QCOMPARE(name->toolTip(), QString("Count"));
        QVERIFY(!(name->flags() & Qt::ItemIsEditable));
        QVERIFY(f.item("Count")->flags() & Qt::ItemIsEditable);
        QCOMPARE(int(f.shown("Flag").type()), int(QVariant::Bool));
        QCOMPARE(f.item("ModeSelector", nameColumn)->toolTip(),
                 QString("ModeSelector<p><b>Selected features:</b><br>Address</p>"));

        QSignalSpy active(f.features, &FeaturesTableWidget::cellEditorActive);
        f.camera.writeAsOtherClient("Count", 77);
        f.camera.modify("Text", [](auto& text) { text.readOnly(); });
        f.camera.modify("Gain", [](auto& gain) {
            gain.shown("The Gain").measuredIn("%").represented("Logarithmic").describedBy("New.");
            gain.between(sim::FloatRange(0.0, 2.0));
        });
        f.features->updateFeatures(f.names + QStringList{"NoSuchFeature"});
        QCOMPARE(f.shown("Count"), QVariant(qint64{77}));
        QCOMPARE(f.item("Text", nameColumn)->foreground().color(), QColor("grey"));
        QVERIFY(!(f.item("Text")->flags() & Qt::ItemIsEditable));
        QCOMPARE(f.writes(), 0);
        QCOMPARE(active.count(), 0);
        QCOMPARE(f.item("Gain", nameColumn)->text(), QString("The Gain"));
        QCOMPARE(f.item("Gain")->data(Qt::AccessibleTextRole), QVariant("The Gain: 1 %"));
        QCOMPARE(f.item("Gain")->data(Qt::UserRole).value<FeatureInfo>().representation,
                 std::string("Logarithmic"));
        QVERIFY(f.item("Gain")->toolTip().contains("New."));
        QVERIFY(f.item("Gain")->toolTip().contains("<b>Maximum:</b> 2<"));
        f.camera.writeAsOtherClient("Gain", 1.0000000000000002);
        f.camera.journal().clear();
        f.camera.journal().record(sim::Operations::all());
        f.features->updateFeatures({"Gain"});
        // Two calls a name make one look-up.
        QVERIFY(f.camera.journal().count(Operation::GetName) <= 2 * std::size_t(f.names.size()));
        QVERIFY(f.shown("Gain").toDouble() == 1.0000000000000002);
        // An editor opened afterwards keeps to the new range.
        type("2.5")(f, f.open("Gain"));
        QVERIFY(f.features->isEditing());
    }

    /// What is not told stays as it is shown, and the row is to be read again.
    void keepsWhatIsNotTold_data()
    {
        const DataTable row([](const char* feature, sim::Operation refused, const sim::Value& other,
                               const QVariant& after) {
            FeaturesTable f;
            const QVariant before = f.shown(feature);
            f.camera.writeAsOtherClient(feature, other);
            f.camera.failures().add(feature, refused, Failure::refuse());
            f.features->updateFeatures({feature});
            QCOMPARE(f.shown(feature), refused == Operation::GetValue ? before : after);
            QVERIFY(f.item(feature)->flags() & Qt::ItemIsEditable);
            QVERIFY(!f.item("Count")->toolTip().contains("-1"));
            QCOMPARE(f.features->pendingFeatures(), QStringList{feature});
            f.camera.failures().clear();
            f.features->updateFeatures(f.features->pendingFeatures());
            QCOMPARE(f.shown(feature), after);
            QCOMPARE(f.features->pendingFeatures(), QStringList());
        });
        row("integer", "Count", Operation::GetValue, 77, qint64{77});
        row("float", "Gain", Operation::GetValue, 2.5, 2.5);
        row("flag", "Flag", Operation::GetValue, true, true);
        row("entry", "ModeSelector", Operation::GetValue, "Third", "Third");
        row("range", "Count", Operation::GetRange, 77, qint64{77});
        row("writability", "Text", Operation::IsWritable, "new", "new");
    }
    void keepsWhatIsNotTold() { runRow(); }

    /// Else each row would wait.
    void leavesALostCamera()
    {
        FeaturesTable f;
        f.camera.lose(std::chrono::milliseconds(120));
        QElapsedTimer waited;
        waited.start();
        f.features->updateFeatures(f.names);
        QVERIFY2(waited.elapsed() < 1000, qPrintable(QString::number(waited.elapsed())));
        QCOMPARE(f.features->pendingFeatures(), f.names);
        QCOMPARE(f.shown("Count"), QVariant(qint64{10}));
    }

    void writesEqualValuesOnce()
    {
        for (const char* feature : {"Count", "Gain", "Text"}) {
            const FeaturesTable f;
            const QModelIndex cell = f.table->model()->index(f.names.indexOf(feature), valueColumn);
            f.table->model()->setData(cell, f.shown(feature), Qt::DisplayRole);
            QCOMPARE(f.writes(), 1);
        }
    }

    void endsASuspendedRefresh()
    {
        FeaturesTable f;
        QSignalSpy active(f.features, &FeaturesTableWidget::cellEditorActive);
        const auto refreshed = [&f](const char* name, int value) {
            f.camera.force(name, value);
            f.features->updateFeatures({name});
            return f.shown(name).toInt() == value;
        };
        f.doubleClick("Bytes");
        QCOMPARE(active.last().at(0).toBool(), true); // announced, but nothing opened
        QVERIFY(refreshed("Count", 15));
        // Asked for by name, an editing is announced until a value is handled or the editor closes.
        f.features->onCellEdit(f.names.indexOf("Count"), valueColumn);
        QVERIFY(!refreshed("Count", 20));
        f.features->onClosingEditor();
        QVERIFY(refreshed("Count", 20));
        f.features->onCellEdit(f.names.indexOf("Model"), valueColumn); // read-only
        QCOMPARE(f.features->editedFeature(), QString("Model"));
        // Another button announces an editor as well, but opens none.
        const QPoint center = f.table->visualItemRect(f.item("Count")).center();
        QTest::mouseDClick(f.table->viewport(), Qt::RightButton, {}, center);
        QCoreApplication::processEvents();
        QVERIFY(refreshed("Count", 30));
    }

    void searchesNamesOnly()
    {
        FeaturesTable f;
        f.table->setCurrentCell(0, valueColumn);
        QTest::keyClick(f.table, Qt::Key_O); // the value "old"
        QCOMPARE(f.table->currentRow(), 0);
        f.table->setCurrentCell(0, nameColumn);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        QTest::keyClick(f.table, Qt::Key_G);
        QCOMPARE(f.table->currentRow(), f.names.indexOf("Gain"));
    }

    void filtersWithoutReading()
    {
        FeaturesTable f;
        const int width = f.table->columnWidth(nameColumn);
        for (const auto& [filter, match] :
             {std::pair("SENSOR IS", "ExposureTime"), std::pair(" the count ", "Count"),
              std::pair("steps", "Steps")}) {
            f.features->setFilter(filter);
            for (const QString& name : f.names)
                QCOMPARE(f.table->isRowHidden(f.names.indexOf(name)), name != match);
        }
        f.features->grab();
        QCOMPARE(f.table->columnWidth(nameColumn), width);
        f.features->setFilter({});
        QVERIFY(!f.table->isRowHidden(0));
        f.features->grab();
        QCOMPARE(int(f.camera.journal().count()), 0);
    }
};

QTEST_MAIN(FeaturesTableWidgetTest)
#include "FeaturesTableWidgetTest.moc"
