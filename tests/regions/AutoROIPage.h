#pragma once

#include "SimulatedCamera.h"
#include "TestEvents.h"
#include "regions/AutoROIWidget.h"
#include "regions/RubberBandLabel.h"

#include "simulator/Model.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRubberBand>
#include <QtTest>

/// A page over a model's camera, shown.
struct AutoROIPage
{
    using Preparation = std::function<void(sim::Camera&)>;

    explicit AutoROIPage(const char* model, const Preparation& prepare = {},
                         sim::NotificationSettings notifications
                         = sim::NotificationSettings::synchronous())
        : camera(sim::createCamera(model))
    {
        camera->setNotifications(notifications);
        if (prepare)
            prepare(*camera);
        page = std::make_unique<AutoROIWidget>(featureList(*camera), nullptr);
        label = page->findChild<RubberBandLabel*>();
        page->resize(519, 909);
        page->show();
        for (int i = 0; i < 4; ++i) // the label's height follows its width one by one
            settle();
        constructionWrites = writes();
        camera->journal().clear();
    }

    QDoubleSpinBox* field(const char* name) const { return page->findChild<QDoubleSpinBox*>(name); }
    QLabel* message() const { return page->findChild<QLabel*>("labelInvalidSettings"); }
    void click(const char* button) const { page->findChild<QPushButton*>(button)->click(); }

    int value(const char* feature) const
    {
        return camera->has(feature) ? int(camera->feature(feature).integer()) : 0;
    }
    int value(const QString& feature) const { return value(qPrintable(feature)); }
    bool isOn() const { return camera->feature("AutofunctionAOIEnable").isOn(); }

    /// What the page wrote, as in "Width 640".
    QStringList writes() const
    {
        QStringList texts;
        for (const sim::JournalEntry& write : camera->journal().writes())
            texts << QString::fromStdString(write.feature + ' ' + write.value.toText());
        return texts;
    }
    bool anyRefused() const
    {
        for (const sim::JournalEntry& write : camera->journal().writes())
            if (write.result != ZebErrorSuccess)
                return true;
        return false;
    }

    void settle() const
    {
        camera->flushNotifications();
        QCoreApplication::processEvents();
        page->updateTimer();
        label->UpdateGeometryAfterResize();
    }

    /// A point of the label, in pixels of the image.
    QPoint at(double x, double y) const
    {
        const QSize sensor = label->sensorSize();
        const double scale = qMin(double(label->width()) / sensor.width(),
                                  double(label->height()) / sensor.height());
        return {int(x * scale), int(y * scale)};
    }

    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<AutoROIWidget> page;
    RubberBandLabel* label = nullptr;
    QStringList constructionWrites;
};
