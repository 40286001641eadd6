#pragma once

#include "CameraEntry.h"
#include "CameraSource.h"

#include <memory>

/// Finds and opens cameras beside the simulated ones, without blocking the window.
class CameraFinder : public QObject
{
    Q_OBJECT

public:
    /// What an ID of such a camera begins with.
    static bool isResponsibleFor(const QString& id)
    {
        return id.startsWith(QLatin1String("genicam:"));
    }

    /// Blocks for about a second.
    virtual QVector<CameraEntry> findNow() = 0;
    /// Answers found().
    virtual void search() = 0;
    /// Answers opened() or failed().
    virtual void open(const QString& id) = 0;
    /// The ID of a camera that needs no hardware.
    virtual QString idWithoutHardware() const = 0;
    /// Cameras that are opened from now on tell a vendor that the module supports.
    virtual void setPresentedAsSupported(bool is) = 0;

signals:
    void found(const QVector<CameraEntry>& cameras);
    void opened(const QString& id, const std::shared_ptr<CameraSource>& camera);
    void failed(const QString& id, const QString& reason);
};
