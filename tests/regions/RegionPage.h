#pragma once

#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "TestEvents.h"
#include "regions/AOIWidget.h"
#include "regions/AutoROIWidget.h"
#include "regions/label/RubberBandLabel.h"

#include "simulator/Model.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRubberBand>
#include <QtTest>

/// A page with one region, over a model's camera, shown.
template <typename Page> struct RegionPage
{
    using Preparation = std::function<void(sim::Camera&)>;

    explicit RegionPage(const QByteArray& model, const Preparation& prepare = {})
        : camera(sim::createCamera(model.toStdString()))
    {
        camera->setNotifications(sim::NotificationSettings::synchronous());
        if (prepare)
            prepare(*camera);
        page = std::make_unique<Page>(featureList(*camera), nullptr);
        label = page->template findChild<RubberBandLabel*>();
        page->show();
        resize(519, 909);
        constructionWrites = writes();
        camera->journal().clear();
    }

    /// The label's height follows its width one by one.
    void resize(int width, int height) const
    {
        page->resize(width, height);
        for (int i = 0; i < 4; ++i)
            settle();
    }

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
    void comeBack() const
    {
        page->hide();
        page->show();
    }
    template <typename Widget> Widget* find(const QString& name) const
    {
        return page->template findChild<Widget*>(name);
    }
    QDoubleSpinBox* field(const QString& name) const { return find<QDoubleSpinBox>(name); }
    QLabel* message() const { return find<QLabel>("labelInvalidSettings"); }
    void click(const char* button) const { find<QAbstractButton>(button)->click(); }
    QRect band() const { return label->template findChild<QRubberBand*>()->geometry(); }
    QColor pictureColor() const
    {
        return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(20, 20);
    }

    /// A point of the label, in pixels of the image.
    QPoint at(double x, double y) const
    {
        const QSize sensor = label->sensorSize();
        const double scale = qMin(double(label->width()) / sensor.width(),
                                  double(label->height()) / sensor.height());
        return {int(x * scale), int(y * scale)};
    }

    int value(const QString& feature) const
    {
        const std::string name = feature.toStdString();
        return camera->has(name) ? int(camera->feature(name).integer()) : 0;
    }

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
        const auto writes = camera->journal().writes();
        return std::any_of(writes.begin(), writes.end(), [](const sim::JournalEntry& write) {
            return write.result != ZebErrorSuccess;
        });
    }

    QRect onCamera() const
    {
        return {value("OffsetX"), value("OffsetY"), value("Width"), value("Height")};
    }

    const MessageHandlerGuard guard;
    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<Page> page;
    RubberBandLabel* label = nullptr;
    QStringList constructionWrites;
};

using AOIPage = RegionPage<AOIWidget>;
using AutoROIPage = RegionPage<AutoROIWidget>;

inline std::shared_ptr<QPixmap> picture(Qt::GlobalColor color)
{
    auto image = std::make_shared<QPixmap>(2592, 1944);
    image->fill(color);
    return image;
}
