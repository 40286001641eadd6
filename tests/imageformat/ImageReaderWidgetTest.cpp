#include "imageformat/ImageReaderWidget.h"
#include "DataTable.h"
#include "WheelEvent.h"
#include "imageformat/PictureFile.h"

#include <QFileDialog>
#include <QImageWriter>
#include <QLineEdit>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using ImagePtr = std::shared_ptr<QPixmap>;

class ImageReaderWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(m_folder.isValid());
        QPixmap picture(30, 20);
        picture.fill(Qt::red);
        QVERIFY(picture.save(m_folder.filePath(QString("picture.png"))));
        QFile broken(m_folder.filePath(QString("broken.png")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no picture");
    }

    void fileIsAnnounced_data()
    {
        const DataTable row([this](const QString& file, bool accepted,
                                   const QList<QSize>& announced) {
            QCOMPARE(PictureFile::filter({"png", "BMP", "Jpg"}),
                     QString("Image files (*.png *.bmp *.jpg)"));
            ImageReaderWidget selector(nullptr);
            const auto images = announcedBy(selector);
            whenDialogOpens([&](QFileDialog* dialog) {
                QCOMPARE(dialog->parentWidget(), &selector);
                QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
                QCOMPARE(dialog->nameFilters(),
                         QStringList{PictureFile::filter(QImageWriter::supportedImageFormats())});
                QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
                dialog->setDirectory(m_folder.path());
                dialog->findChild<QLineEdit*>()->setText(m_folder.filePath(file));
                QDialog* const base = dialog; // whose accept() is public
                accepted ? base->accept() : base->reject();
            });
            selector.onComboBoxItemActivated(ImageReaderWidget::ImageFromFile);
            QList<QSize> sizes;
            for (const ImagePtr& image : *images)
                sizes << image->size();
            QCOMPARE(sizes, announced);
            QCOMPARE(selector.fileFault().isEmpty(), !announced.contains(QSize(0, 0)));
            QVERIFY(!QApplication::overrideCursor());
        });
        row("picture", "picture.png", true, {{30, 20}});
        row("no picture", "broken.png", true, {{0, 0}});
        row("cancelled", "picture.png", false, {});
    }
    void fileIsAnnounced() { runRow(); }

    void refusesWhatIsNoPicture()
    {
        QFile large(m_folder.filePath("900 megapixels"));
        QVERIFY(large.open(QIODevice::WriteOnly));
        large.write("P5\n30000 30000 255\n");
        large.close();
        const QString pipe = m_folder.filePath("pipe");
#ifdef Q_OS_UNIX
        mkfifo(qPrintable(pipe), 0600); // opening it for reading waits for a writer
#endif
        for (const QString& name : {large.fileName(), pipe}) {
            const PictureFile loaded = PictureFile::load(name);
            QVERIFY(loaded.picture.isNull());
            QVERIFY(loaded.fault.contains(name));
        }
    }

    // The list is reset by the page while its dialog is on, or about to be.
    void laterChoiceEndsTheDialog()
    {
        for (const bool isOpen : {true, false}) {
            ImageReaderWidget selector(nullptr);
            const auto images = announcedBy(selector);
            const auto reset
                = [&] { selector.onComboBoxItemActivated(ImageReaderWidget::NoImage); };
            if (isOpen)
                whenDialogOpens([&](QFileDialog* dialog) {
                    dialog->findChild<QLineEdit*>()->setText(m_folder.filePath("picture.png"));
                    reset();
                    QMetaObject::invokeMethod(dialog, "accept");
                });
            bool isLeft = false;
            QTimer::singleShot(200, &selector, [&isLeft] {
                if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                    isLeft = true;
                    dialog->reject();
                }
            });
            emit selector.activated(ImageReaderWidget::ImageFromFile);
            if (!isOpen)
                reset();
            QTest::qWait(300);
            QVERIFY(!isLeft);
            QCOMPARE(*images, QVector<ImagePtr>{nullptr});
        }
    }

    void wheelChoosesWithFocusOnly()
    {
        ImageReaderWidget selector(nullptr);
        QSignalSpy requests(&selector, &ImageReaderWidget::requestFrame);
        selector.show();
        QApplication::setActiveWindow(&selector);
        selector.clearFocus();
        sendWheel(&selector);
        QCOMPARE(requests.count(), 0);
        selector.setFocus();
        sendWheel(&selector);
        QCOMPARE(requests.count(), 1);
    }

private:
    static std::shared_ptr<QVector<ImagePtr>> announcedBy(const ImageReaderWidget& selector)
    {
        auto images = std::make_shared<QVector<ImagePtr>>();
        connect(&selector, &ImageReaderWidget::imageChanged,
                [images](const ImagePtr& image) { images->append(image); });
        return images;
    }

    template <typename Function> static void whenDialogOpens(Function function)
    {
        QTimer::singleShot(50, [function] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            function(dialog);
        });
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(ImageReaderWidgetTest)
#include "ImageReaderWidgetTest.moc"
