#pragma once

#include "SensorState.h"

#include <ZebCPP/ZebCPP.h>

#include <QImage>
#include <QObject>

#include <vector>

/// A camera that is open, whatever stands behind it; deleting it closes the camera. All that the
/// viewer asks of a camera is in here.
class CameraSource : public QObject
{
    Q_OBJECT

public:
    virtual std::vector<ZebCPP::FeaturePtr> features() const = 0;

    /// False when the camera does not start; the log tells why.
    virtual bool start() = 0;
    virtual void stop() = 0;

    virtual SensorState state() const = 0;

    /// The newest frame, which lies at frameRect() of the state; null when there is none. Not
    /// finer than a display of @p shown pixels needs, where that spares work.
    virtual QImage frame(const QSize& shown) const = 0;

    /// What is to be said of a stream: frames a second, lost frames; or an empty text.
    virtual QString streamText() const { return {}; }

    /// The value of a feature as a text, read past the SDK.
    virtual QString readValueText(const QString& feature) const = 0;

    /// Writes @p value the way another client of the camera would: behind the page's back.
    virtual ZebErrorType writeAsOtherClient(const QString& feature, const QString& value) = 0;

signals:
    /// There is a new frame, or the still frame would look different now.
    void pictureChanged();
    /// The camera does not answer any more, or does again.
    void goneChanged(bool isGone);
    void logged(const QString& text);
};
