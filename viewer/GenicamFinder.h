#pragma once

#include "CameraFinder.h"

#include <functional>
#include <thread>
#include <vector>

/// Finds and opens the cameras on network and USB, each in a thread of its own.
class GenicamFinder : public CameraFinder
{
    Q_OBJECT

public:
    GenicamFinder();
    ~GenicamFinder() override;

    QVector<CameraEntry> findNow() override;
    void search() override;
    void open(const QString& id) override;
    QString idWithoutHardware() const override;
    void setPresentedAsSupported(bool is) override { m_isPresentedAsSupported = is; }

private:
    void run(std::function<void()> work);
    void tell(const std::function<void()>& event);

    std::shared_ptr<void> m_fake;
    std::vector<std::thread> m_threads;
    bool m_isPresentedAsSupported = false;
};
