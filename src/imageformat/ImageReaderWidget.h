#pragma once

#include "host/TabExtensionInterface.h"

#include <QComboBox>
#include <QPixmap>
#include <QPointer>
#include <QTimer>

#include <memory>

class QFileDialog;

/// What the regions are drawn over: nothing, the viewer's latest frame, or a picture file.
class ImageReaderWidget : public QComboBox
{
    Q_OBJECT

public:
    /// The entries, in order.
    enum Source {
        NoImage,
        LastAcquiredImage,
        ImageFromFile,
    };

    explicit ImageReaderWidget(QWidget* parent);
    ~ImageReaderWidget() override { closeDialog(); }

    /// As if it were cancelled, if there is one.
    void closeDialog();

    /// Why the file announced last is a null pixmap, for the user; empty when it is a picture.
    const QString& fileFault() const { return m_fileFault; }

signals:
    /// An empty pointer means no background. A file that is no picture gives a null pixmap.
    void imageChanged(std::shared_ptr<QPixmap> image);
    /// Asks the viewer for its latest frame, which comes to onFrameReceived.
    void requestFrame();

public slots:
    void onFrameReceived(const QPixmap& frame);
    /// Leaves the list's current entry as it is. Ends a file dialog that is open.
    void onComboBoxItemActivated(int index);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void activate(int index);
    void chooseFile();

    std::shared_ptr<QPixmap> m_fileImage;
    QString m_fileFault;
    QPointer<QFileDialog> m_dialog;
    QTimer m_dialogDue;
};
