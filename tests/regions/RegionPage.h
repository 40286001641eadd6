#pragma once

#include "CameraPage.h"
#include "TestEvents.h"
#include "regions/AOIWidget.h"
#include "regions/AutoROIWidget.h"
#include "regions/label/RubberBandLabel.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRubberBand>
#include <QtTest>

/// What the fields of the automatic region, or of the image region, are called and the features
/// behind them: left and top, and right and bottom or width and height.
inline QVector<QPair<QString, QString>> regionFields(const sim::Camera& camera, bool isAutomatic)
{
    QString family;
    for (const char* name : {"AutoModeRegion", "AutofunctionAOI", "DSPSubregion"})
        if (isAutomatic
            && (camera.has(name + std::string("Width")) || camera.has(name + std::string("Left"))))
            family = name;
    const bool tellsEdges = family == "DSPSubregion";
    const QStringList fields = tellsEdges ? QStringList{"Left", "Top", "Right", "Bottom"}
                                          : QStringList{"Left", "Top", "Width", "Height"};
    const QStringList features
        = tellsEdges ? fields : QStringList{"OffsetX", "OffsetY", "Width", "Height"};
    QVector<QPair<QString, QString>> result;
    for (int i = 0; i < 4; ++i)
        result.append({"spin" + fields[i], family + features[i]});
    return result;
}

/// A page with one region, shown.
template <typename Page> struct RegionPage : CameraPage<Page>
{
    using Base = CameraPage<Page>;
    using Base::camera;
    using Base::page;

    explicit RegionPage(const QByteArray& model, const typename Base::Preparation& prepare = {})
        : Base(model, prepare)
        , label(page->template findChild<RubberBandLabel*>())
    {
        page->show();
        resize(519, 909);
        constructionWrites = this->writes();
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
    QDoubleSpinBox* field(const QString& name) const
    {
        return this->template find<QDoubleSpinBox>(name);
    }
    QLabel* message() const { return this->template find<QLabel>("labelInvalidSettings"); }
    void click(const char* button) const { this->template find<QAbstractButton>(button)->click(); }
    QRect band() const { return label->template findChild<QRubberBand*>()->geometry(); }

    int value(const QString& feature) const
    {
        const std::string name = feature.toStdString();
        return camera->has(name) ? int(camera->feature(name).integer()) : 0;
    }
    QRect onCamera() const
    {
        return {value("OffsetX"), value("OffsetY"), value("Width"), value("Height")};
    }

    bool anyRefused() const
    {
        const auto writes = camera->journal().writes();
        return std::any_of(writes.begin(), writes.end(), [](const sim::JournalEntry& write) {
            return write.result != ZebErrorSuccess;
        });
    }

    RubberBandLabel* label = nullptr;
    QStringList constructionWrites;
};

using AOIPage = RegionPage<AOIWidget>;
using AutoROIPage = RegionPage<AutoROIWidget>;
