#pragma once

#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"

#include "simulator/Model.h"

#include <QWidget>

#include <functional>
#include <memory>

/// A page over a model's camera, which tells of changes at once.
template <typename Page> struct CameraPage
{
    using Preparation = std::function<void(sim::Camera&)>;

    explicit CameraPage(const QByteArray& model, const Preparation& prepare = {})
        : camera(sim::createCamera(model.toStdString()))
    {
        camera->setNotifications(sim::NotificationSettings::synchronous());
        if (prepare)
            prepare(*camera);
        page = std::make_unique<Page>(featureList(*camera), nullptr);
    }

    template <typename Widget> Widget* find(const QString& name = {}) const
    {
        return page->template findChild<Widget*>(name);
    }
    void comeBack() const
    {
        page->hide();
        page->show();
    }

    /// What clients of the SDK wrote, as in "Width 640".
    QStringList writes() const
    {
        QStringList texts;
        for (const sim::JournalEntry& write : camera->journal().writes())
            texts << QString::fromStdString(write.feature + ' ' + write.value.toText());
        return texts;
    }

    const MessageHandlerGuard guard;
    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<Page> page;
};
