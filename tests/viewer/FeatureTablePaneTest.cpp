#include "FeatureTablePane.h"

#include "CameraSession.h"
#include "SimulatedSource.h"

#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

class FeatureTablePaneTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheCameraMadeOfAnEdit()
    {
        CameraSession session({}, std::make_unique<SimulatedSource>(QString("current")));
        FeatureTablePane pane;
        pane.setSession(&session);
        pane.resize(600, 400);
        pane.show();
        pane.setSeen(true);
        QApplication::setActiveWindow(&pane);
        const auto* table = pane.findChild<QTableWidget*>(QString("tblFeatures"));
        const auto names = table->model()->match(table->model()->index(0, 0), Qt::UserRole,
                                                 QString("Width"), 1, Qt::MatchExactly);
        const auto shown = [&] { return table->item(names.first().row(), 1)->text().toInt(); };
        const auto open = [&] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the last one
            pane.edit(QString("Width"));
            return table->findChild<QSpinBox*>(QString("editorField"));
        };
        QSpinBox* field = open();
        QVERIFY(field->singleStep() > 1);
        const int aligned = shown() - field->singleStep();
        field->setValue(aligned);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(shown(), aligned);

        // The camera keeps its value, so it has nothing to notify of.
        field = open();
        field->setValue(aligned + 1);
        QCOMPARE(field->value(), aligned + 1);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(shown(), aligned);

        field = open();
        session.camera().writeAsOtherClient(QString("Width"), QString("640"));
        QTest::qWait(700); // the pane gathers for half a second
        QCOMPARE(shown(), aligned);
        QTest::keyClick(field, Qt::Key_Escape);
        QTRY_COMPARE(shown(), 640);
    }
};

QTEST_MAIN(FeatureTablePaneTest)
#include "FeatureTablePaneTest.moc"
