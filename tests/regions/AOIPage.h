#pragma once

#include "SimulatedCamera.h"
#include "TestEvents.h"
#include "regions/AOIWidget.h"
#include "regions/RubberBandLabel.h"

#include "simulator/Model.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRubberBand>
#include <QtTest>

/// A page over a model's camera, shown.
struct AOIPage
{
    using Preparation = std::function<void(sim::Camera&)>;

    explicit AOIPage(const QByteArray& model, const Preparation& prepare = {},
                     const QStringList& missing = {})
        : camera(sim::createCamera(model.toStdString()))
    {
        camera->setNotifications(sim::NotificationSettings::synchronous());
        if (prepare)
            prepare(*camera);
        const auto features = featureList(*camera);
        for (const QString& name : missing)
            features->erase(std::remove_if(features->begin(), features->end(),
                                           [&](const ZebCPP::FeaturePtr& feature) {
                                               std::string text;
                                               ZebFeatureWrapper(feature).GetName(text);
                                               return text == name.toStdString();
                                           }),
                            features->end());
        page = std::make_unique<AOIWidget>(features, nullptr);
        label = page->findChild<RubberBandLabel*>();
        page->show();
        resize(500, 700);
        camera->journal().clear();
    }

    /// The label's height follows its width one by one.
    void resize(int width, int height) const
    {
        page->resize(width, height);
        for (int i = 0; i < 4; ++i)
            settle();
    }

    QDoubleSpinBox* field(const char* name) const { return page->findChild<QDoubleSpinBox*>(name); }
    void click(const char* button) const { page->findChild<QPushButton*>(button)->click(); }
    int value(const char* feature) const { return int(camera->feature(feature).integer()); }
    QRect band() const { return label->findChild<QRubberBand*>()->geometry(); }

    void settle() const
    {
        camera->flushNotifications();
        QCoreApplication::processEvents();
        page->updateTimer();
        QCoreApplication::processEvents(); // a new sensor size changes the layout
        label->UpdateGeometryAfterResize();
    }

    /// A notification's way to the page.
    void refreshBy(const char* feature) const
    {
        page->OnFeatureChanged(feature, QString());
        page->updateTimer();
    }

    SensorRegion onCamera() const
    {
        return {value("OffsetY"), value("OffsetX"), value("Width"), value("Height")};
    }

    SensorRegion inFields() const
    {
        return {int(field("spinTop")->value()), int(field("spinLeft")->value()),
                int(field("spinWidth")->value()), int(field("spinHeight")->value())};
    }

    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<AOIWidget> page;
    RubberBandLabel* label = nullptr;
};

inline QString text(const SensorRegion& r)
{
    return QString("%1 %2 %3 %4").arg(r.top).arg(r.left).arg(r.width).arg(r.height);
}
