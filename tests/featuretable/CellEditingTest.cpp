#include "featuretable/CellEditing.h"

#include "featuretable/editors/DelegateWidget.h"
#include "featuretable/editors/DelegateWidgetFactory.h"

#include <QtTest>

/// The state of a table's editor, without a table.
class CellEditingTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatIsEdited()
    {
        CellEditing editing;
        const auto covered = [&editing] {
            QString names;
            for (const char* name : {"", "Count", "Gain"})
                names += editing.covers(name) ? name : "";
            return names + (editing.isOpen() ? " open " : " closed ") + editing.feature();
        };
        QCOMPARE(covered(), QString(" closed "));
        editing.announce("Gain");
        QCOMPARE(covered(), QString("Gain closed Gain"));
        editing.closed(); // none opened
        QCOMPARE(covered(), QString(" closed "));
        editing.announce("Count");
        FeatureInfo info;
        info.name = "Count";
        info.writable = true;
        auto editor = std::unique_ptr<DelegateWidget>(createDelegateWidget(info, nullptr));
        editing.opened(editor.get());
        editing.closed(); // the end of the announcement, or a slider's value was handled
        QCOMPARE(covered(), QString("Count open Count"));
        editing.announce("Gain"); // while the other closes
        QCOMPARE(covered(), QString("CountGain open Gain"));
        editing.closed();
        QSignalSpy finished(editor.get(), &DelegateWidget::editingFinished);
        editing.finish();
        editing.finish();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(covered(), QString(" closed ")); // though the editor is not yet deleted
        editor.reset(createDelegateWidget(info, nullptr));
        editing.opened(editor.get());
        editor.reset();
        editing.finish();
        QCOMPARE(covered(), QString(" closed "));
    }
};

QTEST_MAIN(CellEditingTest)
#include "CellEditingTest.moc"
