#include "imageformat/ImageReaderWidget.h"

#include "imageformat/PictureFile.h"
#include "widgets/OverrideCursor.h"

#include <QFileDialog>
#include <QImageWriter>
#include <QWheelEvent>

#include <utility>

ImageReaderWidget::ImageReaderWidget(QWidget* parent)
    : QComboBox(parent)
{
    qRegisterMetaType<std::shared_ptr<QPixmap>>("std::shared_ptr<QPixmap>");
    addItems({QStringLiteral("No image"), QStringLiteral("Last acquired image"),
              QStringLiteral("Image from file")});
    setFocusPolicy(Qt::StrongFocus); // or else the wheel itself would give the focus
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &ImageReaderWidget::activate);
    m_dialogDue.setSingleShot(true);
    connect(&m_dialogDue, &QTimer::timeout, this,
            [this] { onComboBoxItemActivated(ImageFromFile); });
}

// The list still has a signal to emit after this one, and the camera may be closed, and the list
// with it, while the file dialog is open: the dialog waits until the list is done.
void ImageReaderWidget::activate(int index)
{
    if (index == ImageFromFile)
        m_dialogDue.start();
    else
        onComboBoxItemActivated(index);
}

void ImageReaderWidget::onFrameReceived(const QPixmap& frame)
{
    m_fileFault.clear();
    emit imageChanged(std::make_shared<QPixmap>(frame));
}

void ImageReaderWidget::onComboBoxItemActivated(int index)
{
    const OverrideCursor waitCursor(Qt::WaitCursor);
    // A dialog that was opened before asks for what is not wanted any more.
    m_dialogDue.stop();
    closeDialog();
    if (index == NoImage) {
        m_fileImage.reset();
        m_fileFault.clear();
        emit imageChanged(m_fileImage);
    } else if (index == LastAcquiredImage) {
        emit requestFrame();
    } else if (index == ImageFromFile) {
        chooseFile();
    }
}

// Rolling over the list on the way down the page must not choose.
void ImageReaderWidget::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

// The camera may be closed while the dialog is open, and this widget with it.
void ImageReaderWidget::chooseFile()
{
    const QPointer<ImageReaderWidget> self(this);
    const QPointer<QFileDialog> dialog = new QFileDialog(this, QString(), QString(), QString());
    m_dialog = dialog.data();
    dialog->setNameFilter(PictureFile::filter(QImageWriter::supportedImageFormats()));
    dialog->setFileMode(QFileDialog::ExistingFile);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;

    const QStringList files = dialog->selectedFiles();
    dialog->deleteLater();
    const bool isCurrent = self && std::exchange(m_dialog, nullptr) == dialog;
    if (!isCurrent || !accepted || files.isEmpty())
        return;
    const PictureFile file = PictureFile::load(files.first());
    m_fileImage = std::make_shared<QPixmap>(file.picture);
    m_fileFault = file.fault;
    emit imageChanged(m_fileImage);
}

void ImageReaderWidget::closeDialog()
{
    QFileDialog* const dialog = m_dialog;
    m_dialog.clear();
    if (!dialog)
        return;
    // What the dialog itself asks lies on the stack: neither may be deleted before it unwinds.
    const auto questions = dialog->findChildren<QDialog*>();
    for (QDialog* const question : questions)
        question->reject();
    dialog->reject();
    dialog->setParent(nullptr, dialog->windowFlags());
}
