#include "imageformat/ImageFormatWidget.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "imageformat/ImageReaderWidget.h"
#include "plugin/TabExtensionException.h"

#include "simulator/Model.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>
#include <QtTest>
#include <qtestspontaneevent.h>

namespace {

// A page over a model's camera, shown, with one refresh done.
struct OpenPage
{
    explicit OpenPage(const char* model = "current")
        : camera(sim::createCamera(model))
        , page(std::make_unique<ImageFormatWidget>(featureList(*camera), nullptr))
    {
        camera->setNotifications(sim::NotificationSettings::synchronous());
        page->show();
        page->updateTimer();
    }

    template <typename Field> Field* field(const char* name) const
    {
        return page->findChild<Field*>(QLatin1String(name));
    }

    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<ImageFormatWidget> page;
};

// Qt asks for the scroll area to be scrolled only on wheel events that a window system delivers.
void sendWheel(QWidget* target)
{
    const QPointF position = target->rect().center();
    QWheelEvent event(position, target->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(target, &event);
}

} // namespace

class ImageFormatWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheCamera();
    void writesNothingByItself();
    void writesAndShowsWhatTheCameraTook();
    void clearsTheImageAfterGeometryChanges_data();
    void clearsTheImageAfterGeometryChanges();
    void followsOtherClients();
    void clearsTheImageOnceForOtherClients();
    void takesOverMissingFeatures();
    void guardsFieldsAgainstTheWheel();
    void disablesWhileStreaming();

private:
    MessageHandlerGuard m_guard;
};

void ImageFormatWidgetTest::showsTheCamera()
{
    const OpenPage p;
    auto* const format = p.field<QComboBox>("cmbPixelFormat");
    QCOMPARE(format->currentText().toStdString(), p.camera->feature("PixelFormat").text());
    auto* const binning = p.field<QSpinBox>("spbBinningHorizontal");
    QCOMPARE(binning->value(), int(p.camera->feature("BinningHorizontal").integer()));
    QCOMPARE(binning->maximum(), int(p.camera->feature("BinningHorizontal").range().maximum));
    QCOMPARE(p.page->accessibleName(), QStringLiteral("Image Format"));
    QVERIFY(!p.field<QLabel>("lblIcon")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(p.field<QAbstractButton>("btnImageFormat")->text(), QStringLiteral(" Image Format: "));
}

void ImageFormatWidgetTest::writesNothingByItself()
{
    for (const std::string& model : sim::modelNames()) {
        const auto camera = sim::createCamera(model);
        try {
            ImageFormatWidget page(featureList(*camera), nullptr);
            page.show();
            page.updateTimer();
            page.hide();
        } catch (const TabExtensionException&) {
            continue;
        }
        QVERIFY2(camera->journal().writes().empty(), model.c_str());
        QCOMPARE(int(camera->observerCount()), 0);
    }
}

void ImageFormatWidgetTest::writesAndShowsWhatTheCameraTook()
{
    const OpenPage p;
    auto* const binning = p.field<QSpinBox>("spbBinningHorizontal");
    auto* const format = p.field<QComboBox>("cmbPixelFormat");
    auto* const reverse = p.field<QCheckBox>("chkReverseX");

    binning->setValue(2);
    QCOMPARE(int(p.camera->feature("BinningHorizontal").integer()), 2);
    format->setCurrentIndex(1);
    QCOMPARE(p.camera->feature("PixelFormat").text(), format->itemText(1).toStdString());
    reverse->click();
    QVERIFY(p.camera->feature("ReverseX").isOn());

    // What the camera refuses is not shown.
    p.camera->failures().add(sim::FailureInjector::anyFeature, sim::Operation::SetValue,
                             sim::Failure::refuse());
    binning->setValue(4);
    QCOMPARE(binning->value(), 2);
    format->setCurrentIndex(2);
    QCOMPARE(format->currentIndex(), 1);
    p.camera->journal().clear();
    const QPoint indicator(reverse->width() - 10, reverse->height() / 2);
    for (int click = 1; click <= 3; ++click) {
        QTest::mouseClick(reverse, Qt::LeftButton, Qt::KeyboardModifiers(), indicator);
        QCOMPARE(int(p.camera->journal().writes().size()), click);
        QVERIFY(reverse->isChecked());
    }
    QVERIFY(!binning->signalsBlocked() && !format->signalsBlocked() && !reverse->signalsBlocked());
}

void ImageFormatWidgetTest::clearsTheImageAfterGeometryChanges_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("clears");
    QTest::newRow("BinningHorizontal") << "spbBinningHorizontal" << true;
    QTest::newRow("BinningVertical") << "spbBinningVertical" << true;
    QTest::newRow("ReverseX") << "chkReverseX" << true;
    QTest::newRow("ReverseY") << "chkReverseY" << true;
    QTest::newRow("PixelFormat") << "cmbPixelFormat" << false;
}

void ImageFormatWidgetTest::clearsTheImageAfterGeometryChanges()
{
    QFETCH(QString, field);
    const OpenPage p;
    auto* const source = p.field<ImageReaderWidget>("imageReaderWidget");
    QSignalSpy images(source, &ImageReaderWidget::imageChanged);
    source->setCurrentIndex(ImageReaderWidget::LastAcquiredImage);

    auto* const widget = p.page->findChild<QWidget*>(field);
    if (auto* const spinBox = qobject_cast<QSpinBox*>(widget))
        spinBox->setValue(2);
    else if (auto* const checkBox = qobject_cast<QCheckBox*>(widget))
        checkBox->click();
    else
        static_cast<QComboBox*>(widget)->setCurrentIndex(1);

    QTEST(source->currentIndex() == ImageReaderWidget::NoImage, "clears");
    p.page->updateTimer(); // the notification of the page's own write changes nothing more
    QTEST(images.size() == 1, "clears");
}

void ImageFormatWidgetTest::followsOtherClients()
{
    const OpenPage p;
    p.camera->writeAsOtherClient("BinningVertical", 2);
    p.camera->writeAsOtherClient("ReverseY", true);
    p.camera->writeAsOtherClient("PixelFormat", "Mono12");
    p.camera->modify("BinningHorizontal",
                     [](sim::FeatureDescription& feature) { feature.readOnly(); });
    p.camera->burst("BinningHorizontal", 1);
    p.camera->journal().clear();
    p.page->updateTimer();

    QCOMPARE(p.field<QSpinBox>("spbBinningVertical")->value(), 2);
    QVERIFY(p.field<QCheckBox>("chkReverseY")->isChecked());
    QCOMPARE(p.field<QComboBox>("cmbPixelFormat")->currentText(), QStringLiteral("Mono12"));
    QVERIFY(!p.field<QSpinBox>("spbBinningHorizontal")->isEnabled());
    QVERIFY(p.camera->journal().writes().empty());
}

void ImageFormatWidgetTest::clearsTheImageOnceForOtherClients()
{
    const OpenPage p;
    QSignalSpy images(p.field<ImageReaderWidget>("imageReaderWidget"),
                      &ImageReaderWidget::imageChanged);
    p.camera->writeAsOtherClient("ReverseY", true);
    p.page->updateTimer();
    p.page->OnFeatureChanged(QStringLiteral("ReverseY"), QString());
    p.page->updateTimer();
    QCOMPARE(images.size(), 1);
}

void ImageFormatWidgetTest::takesOverMissingFeatures()
{
    const OpenPage p("plain");
    auto* const reverse = p.field<QCheckBox>("chkReverseX");
    QVERIFY(!reverse->isEnabled());
    QCOMPARE(reverse->toolTip(),
             QStringLiteral("Feature 'ReverseX' is not available in the camera."));
    auto* const selector = p.field<QComboBox>("cmbBinningSelector");
    QVERIFY(!selector->isEnabled());
    QCOMPARE(selector->toolTip(),
             QStringLiteral("Feature 'BinningSelector' is not available in the camera."));

    QSignalSpy images(p.field<ImageReaderWidget>("imageReaderWidget"),
                      &ImageReaderWidget::imageChanged);
    p.page->OnFeatureChanged(QStringLiteral("BinningHorizontal"), QString());
    p.page->OnFeatureChanged(QStringLiteral("ReverseX"), QString());
    p.page->updateTimer();
    QCOMPARE(images.size(), 0);
    QVERIFY(!reverse->isChecked());
    QVERIFY(p.field<QSpinBox>("spbBinningHorizontal")->isEnabled());
}

void ImageFormatWidgetTest::guardsFieldsAgainstTheWheel()
{
    const OpenPage p;
    p.page->resize(300, 120);
    QApplication::setActiveWindow(p.page.get());
    auto* const binning = p.field<QSpinBox>("spbBinningHorizontal");
    auto* const scrollBar = p.field<QScrollArea>("scrollArea")->verticalScrollBar();
    QVERIFY(scrollBar->maximum() > 0);
    QVERIFY(!binning->hasFocus());

    sendWheel(binning);
    QCOMPARE(int(p.camera->feature("BinningHorizontal").integer()), 1);
    QVERIFY(scrollBar->value() > 0);
    sendWheel(p.field<QComboBox>("cmbPixelFormat"));
    QVERIFY(p.camera->journal().writes().empty());

    binning->setValue(2);
    binning->setFocus();
    QVERIFY(binning->hasFocus());
    sendWheel(binning);
    QCOMPARE(int(p.camera->feature("BinningHorizontal").integer()), 1);
}

void ImageFormatWidgetTest::disablesWhileStreaming()
{
    const OpenPage p;
    QSignalSpy running(p.page.get(), &ImageFormatWidget::acquisitionRunning);
    p.page->camIsStreaming(true);
    QVERIFY(!p.field<QWidget>("frmImageFormat")->isEnabled());
    QVERIFY(!p.field<QWidget>("imageReaderWidget")->isEnabled());
    p.page->camIsStreaming(false);
    QVERIFY(p.field<QWidget>("frmImageFormat")->isEnabled());
    QCOMPARE(running.size(), 2);
}

QTEST_MAIN(ImageFormatWidgetTest)
#include "ImageFormatWidgetTest.moc"
