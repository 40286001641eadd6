#include "imageformat/ImageFormatWidget.h"
#include "CameraPage.h"
#include "DataTable.h"
#include "WheelEvent.h"
#include "imageformat/ImageReaderWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>

namespace {

/// A page over a model's camera, shown, with one refresh done.
struct OpenPage : CameraPage<ImageFormatWidget>
{
    explicit OpenPage(const char* model = "current")
        : CameraPage(model)
    {
        page->show();
        page->updateTimer();
    }

    QSpinBox* binning() const { return find<QSpinBox>("spbBinningHorizontal"); }
    QComboBox* format() const { return find<QComboBox>("cmbPixelFormat"); }
    ImageReaderWidget* source() const { return find<ImageReaderWidget>("imageReaderWidget"); }
    int value(const char* feature) const { return int(camera->feature(feature).integer()); }
    void refuse(sim::Operations operations) const
    {
        camera->failures().add("*", operations, sim::Failure::refuse());
    }
};

} // namespace

class ImageFormatWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void writesAndShowsWhatTheCameraTook()
    {
        const OpenPage p;
        QCOMPARE(p.binning()->maximum(), 4);
        QVERIFY(!p.find<QLabel>("lblIcon")->pixmap(Qt::ReturnByValue).isNull());
        auto* const reverse = p.find<QCheckBox>("chkReverseX");
        p.binning()->setValue(2);
        QCOMPARE(p.value("BinningHorizontal"), 2);
        p.format()->setCurrentIndex(1);
        QCOMPARE(p.camera->feature("PixelFormat").text(), p.format()->itemText(1).toStdString());
        reverse->click();
        QVERIFY(p.camera->feature("ReverseX").isOn());

        // What the camera refuses is not shown, nor what it does not tell.
        for (const auto refused : {sim::Operation::GetValue, sim::Operation::SetValue}) {
            p.camera->failures().clear();
            p.refuse(sim::Operations(refused) | sim::Operation::SetValue);
            p.binning()->setValue(4);
            QCOMPARE(p.binning()->value(), 2);
            p.format()->setCurrentIndex(2);
            QCOMPARE(p.format()->currentIndex(), 1);
        }
        p.camera->journal().clear();
        const QPoint indicator(reverse->width() - 10, reverse->height() / 2);
        for (int click = 1; click <= 3; ++click) {
            QTest::mouseClick(reverse, Qt::LeftButton, {}, indicator);
            QCOMPARE(int(p.camera->journal().writes().size()), click);
            QVERIFY(reverse->isChecked());
        }
        QVERIFY(!p.binning()->signalsBlocked());
    }

    void clearsTheImageAfterGeometryChanges_data()
    {
        const DataTable row([](const char* property, const QVariant& value, bool clears) {
            const OpenPage p;
            QSignalSpy images(p.source(), &ImageReaderWidget::imageChanged);
            p.source()->setCurrentIndex(ImageReaderWidget::LastAcquiredImage);
            QVERIFY(p.find<QWidget>(QTest::currentDataTag())->setProperty(property, value));
            QCOMPARE(p.source()->currentIndex() == ImageReaderWidget::NoImage, clears);
            p.page->updateTimer(); // the notification of the page's own write changes nothing more
            QCOMPARE(images.size() == 1, clears);
        });
        row("spbBinningHorizontal", "value", 2, true);
        row("spbBinningVertical", "value", 2, true);
        row("chkReverseX", "checked", true, true);
        row("chkReverseY", "checked", true, true);
        row("cmbPixelFormat", "currentIndex", 1, false);
    }
    void clearsTheImageAfterGeometryChanges() { runRow(); }

    // An answer that is no entry selects nothing, and the next refresh asks for the entries.
    void refillsTheListAfterAnUnknownAnswer()
    {
        const OpenPage p;
        p.camera->setNotifications(sim::NotificationSettings::off());
        p.camera->force("PixelFormat", "Mono77");
        p.refuse(sim::Operation::SetValue);
        p.format()->setCurrentIndex(1);
        QCOMPARE(p.format()->currentIndex(), -1);
        p.camera->modify("PixelFormat", [](auto& f) { f.entries.push_back({"Mono77", 77}); });
        p.page->updateTimer();
        QCOMPARE(p.format()->currentText(), QString("Mono77"));
    }

    // What is not told stays as it is until it is told.
    void followsOtherClients_data()
    {
        const DataTable row([](sim::Operations refused) {
            const OpenPage p;
            QSignalSpy images(p.source(), &ImageReaderWidget::imageChanged);
            p.refuse(refused);
            p.camera->writeAsOtherClient("ReverseY", true);
            p.camera->writeAsOtherClient("BinningVertical", 2);
            p.camera->writeAsOtherClient("PixelFormat", "Mono12");
            p.camera->modify("BinningHorizontal",
                             [](sim::FeatureDescription& feature) { feature.readOnly(); });
            p.camera->burst("BinningHorizontal", 1);
            p.page->OnFeatureChanged("ReverseX", QString()); // as it is
            p.camera->journal().clear();
            p.page->updateTimer();
            if (refused.contains(sim::Operation::GetValue))
                QCOMPARE(p.find<QSpinBox>("spbBinningVertical")->value(), 1);
            p.camera->failures().clear();
            p.page->updateTimer();
            QCOMPARE(images.size(), 1);
            QCOMPARE(p.find<QSpinBox>("spbBinningVertical")->value(), 2);
            QVERIFY(p.find<QCheckBox>("chkReverseY")->isChecked());
            QCOMPARE(p.format()->currentText(), QString("Mono12"));
            QVERIFY(!p.binning()->isEnabled());
            QVERIFY(p.format()->isEnabled());
            QVERIFY(p.camera->journal().writes().empty());
        });
        row("all is told", sim::Operations());
        row("no value is told", sim::Operation::GetValue);
        row("no range is told", sim::Operation::GetRange);
        row("no access is told", sim::Operation::IsWritable);
        row("no entries are told", sim::Operation::GetValues);
    }
    void followsOtherClients() { runRow(); }

    void disablesFieldsWithoutFeature()
    {
        const OpenPage p("plain");
        QSignalSpy images(p.source(), &ImageReaderWidget::imageChanged);
        for (const char* name : {"cmbPixelFormat", "cmbBinningSelector", "cmbBinningHorizontalMode",
                                 "cmbBinningVerticalMode", "spbBinningHorizontal",
                                 "spbBinningVertical", "chkReverseX", "chkReverseY"}) {
            const QString feature = QString(name).mid(3);
            const bool isMissing = !p.camera->has(feature.toStdString());
            const QString text = "Feature '" + feature + "' is not available in the camera.";
            const bool isNamed
                = isMissing && (feature.startsWith("Reverse") || feature == "BinningSelector");
            QCOMPARE(p.find<QWidget>(name)->isEnabled(), !isNamed);
            QCOMPARE(p.find<QWidget>(name)->toolTip(), isNamed ? text : QString());
            p.page->OnFeatureChanged(feature, QString());
            p.page->updateTimer();
            QCOMPARE(p.find<QWidget>(name)->isEnabled(), !isMissing);
        }
        QVERIFY(!p.camera->has("BinningHorizontal") && p.camera->has("PixelFormat"));
        QCOMPARE(images.size(), 0);
    }

    void tellsWhyAPictureCannotBeUsed()
    {
        const OpenPage p;
        QSignalSpy log(p.page.get(), &ImageFormatWidget::loggingMessage);
        QTemporaryFile file;
        QVERIFY(file.open());
        QTimer::singleShot(50, p.page.get(), [&file] {
            QWidget* const dialog = QApplication::activeModalWidget();
            dialog->findChild<QLineEdit*>()->setText(file.fileName());
            QMetaObject::invokeMethod(dialog, "accept");
        });
        p.source()->onComboBoxItemActivated(ImageReaderWidget::ImageFromFile);
        p.source()->onComboBoxItemActivated(ImageReaderWidget::NoImage);
        QCOMPARE(log.size(), 1);
        QVERIFY(log.first().last().toString().contains(file.fileName()));
    }

    // Its end gives the focus back to a field, which tells the page.
    void outlivesItsPictureDialog()
    {
        for (const bool asks : {false, true}) { // that the file is missing
            OpenPage p;
            QPointer<QFileDialog> dialog;
            QByteArray pageAtEnd;
            QTimer user;
            connect(&user, &QTimer::timeout, qApp, [&] {
                QWidget* const modal = QApplication::activeModalWidget();
                if (!dialog && modal) {
                    dialog = qobject_cast<QFileDialog*>(modal);
                    connect(dialog, &QDialog::rejected, qApp, [&, page = p.page.get()] {
                        pageAtEnd = page->metaObject()->className();
                    });
                    dialog->findChild<QLineEdit*>()->setText("missing.png");
                    if (asks)
                        QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
                } else if (dialog && (modal != dialog) == asks) {
                    user.stop();
                    p.page.reset();
                }
            });
            user.start(20);
            p.source()->onComboBoxItemActivated(ImageReaderWidget::ImageFromFile);
            QCOMPARE(pageAtEnd, QByteArray("ImageFormatWidget"));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!dialog && !QApplication::activeModalWidget());
        }
    }

    void guardsFieldsAgainstTheWheel()
    {
        const OpenPage p;
        p.page->resize(300, 120);
        QApplication::setActiveWindow(p.page.get());
        const auto* const scrollBar = p.find<QScrollArea>("scrollArea")->verticalScrollBar();
        QVERIFY(scrollBar->maximum() > 0);
        sendWheel(p.binning());
        QVERIFY(scrollBar->value() > 0);
        QVERIFY(p.camera->journal().writes().empty());

        p.binning()->setValue(2);
        p.binning()->setFocus();
        sendWheel(p.binning());
        QCOMPARE(p.value("BinningHorizontal"), 1);
    }
};

QTEST_MAIN(ImageFormatWidgetTest)
#include "ImageFormatWidgetTest.moc"
