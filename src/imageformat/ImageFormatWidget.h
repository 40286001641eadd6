#pragma once

#include "page/BaseTabPluginWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include <memory>

class FeatureBinder;

namespace Ui {
class ImageFormatWidget;
}

/// The page that the viewer sees: pixel format, binning and reversal, the choice of a background
/// image, and as inner tabs the region pages, which reach the viewer through this page only.
class ImageFormatWidget : public BaseTabPluginWidget
{
    Q_OBJECT

public:
    /// Throws TENotSupported for a camera of another vendor or without an image size.
    ImageFormatWidget(const FeatureList& camera, QWidget* parent);
    ~ImageFormatWidget() override;

signals:
    /// For the region pages, whenever the viewer reports that streaming started or stopped.
    void acquisitionRunning(bool running);
    void loggingMessage(ZebViewerLogCategory category, const QString& message);
    /// Asks the viewer for the latest frame; receiveFrameSignal() is its answer.
    void requestFrameSignal();
    void receiveFrameSignal(const QPixmap& frame);

public slots:
    void camIsStreaming(bool streaming);
    void OnChangeSpinbox(int value) { write(QSpinBox::staticMetaObject, value); }
    void OnChangeComboboxSelection(const QString& currentText)
    {
        write(QComboBox::staticMetaObject, currentText);
    }
    void OnChangeCheckbox(int state) { write(QCheckBox::staticMetaObject, state); }

protected:
    void refreshFeatures() override;
    void onPaletteChanged(QEvent* event) override;
    void reportLoss(const QString& message) override
    {
        emit loggingMessage(ZebViewerLogMultiRegion, message);
    }

private:
    void connectImageSource();
    void addRegionPages();
    void bindFields();
    bool bind(QWidget* field, const QStringList& existing);
    void write(const QMetaObject& fieldType, const QVariant& value);
    void resetImageSource();
    void updateIcon();

    template <typename Page> Page* addRegionPage();

    const std::unique_ptr<FeatureBinder> m_binder;
    std::unique_ptr<Ui::ImageFormatWidget> m_ui;
};
