#include "FeatureTablePane.h"

#include "CameraSession.h"
#include "SimulatedSource.h"

#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

namespace {

/// The pane with a simulated camera, and the row of Width.
struct Fixture
{
    Fixture()
        : session({}, std::make_unique<SimulatedSource>(QString("current")))
    {
        pane.setSession(&session);
        pane.resize(600, 400);
        pane.show();
        pane.setSeen(true);
        QApplication::setActiveWindow(&pane);
        table = pane.findChild<QTableWidget*>(QString("tblFeatures"));
        const auto names = table->model()->match(table->model()->index(0, 0), Qt::UserRole,
                                                 QString("Width"), 1, Qt::MatchExactly);
        cell = table->item(names.first().row(), 1);
    }

    QSpinBox* open()
    {
        pane.edit(QString("Width"));
        return table->findChild<QSpinBox*>(QString("editorField"));
    }

    CameraSession session;
    FeatureTablePane pane;
    QTableWidget* table;
    QTableWidgetItem* cell;
};

} // namespace

class FeatureTablePaneTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheCameraMadeOfAnEdit()
    {
        Fixture f;
        const QVariant before = f.cell->data(Qt::DisplayRole);
        QSpinBox* field = f.open();
        QVERIFY(field->singleStep() > 1);
        field->setValue(before.toInt() - field->singleStep());
        QTest::keyClick(field, Qt::Key_Return);
        const QVariant aligned = f.cell->data(Qt::DisplayRole);

        // The camera keeps its value, so it has nothing to notify of.
        field = f.open();
        field->setValue(aligned.toInt() + 1);
        QCOMPARE(field->value(), aligned.toInt() + 1);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(f.cell->data(Qt::DisplayRole), aligned);
    }

    void refreshesWhenTheEditorCloses()
    {
        Fixture f;
        const QVariant before = f.cell->data(Qt::DisplayRole);
        QSpinBox* field = f.open();
        f.session.camera().writeAsOtherClient(QString("Width"), QString("640"));
        QTest::qWait(700); // the pane gathers for half a second
        QCOMPARE(f.cell->data(Qt::DisplayRole), before);
        QTest::keyClick(field, Qt::Key_Escape);
        QTRY_COMPARE(f.cell->data(Qt::DisplayRole).toInt(), 640);
    }
};

QTEST_MAIN(FeatureTablePaneTest)
#include "FeatureTablePaneTest.moc"
