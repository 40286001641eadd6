#pragma once

#include "CameraFinder.h"

#include <functional>
#include <thread>
#include <vector>

namespace genicam {
class FakeCamera;
}

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
    QString startFake();
    void run(std::function<void()> work);
    void tell(const std::function<void()>& event);

    std::unique_ptr<genicam::FakeCamera> m_fake;
    std::vector<std::thread> m_threads;
    bool m_isPresentedAsSupported = false;
};
