#pragma once

#include "Random.h"
#include "Report.h"

#include "simulator/Snapshot.h"

#include <ZebCPP/ZebCPP.h>

#include <QStringList>

#include <chrono>
#include <memory>
#include <vector>

/// A camera of these sessions: what the module gets of it, and what a session sees and does past
/// that.
class SoakCamera
{
public:
    struct Character
    {
        bool isHonest = true; ///< at most it refuses, or answers late
        bool isStrict = true; ///< and only what is illegal
        bool hasThreads = false;
        bool countsObservers = true; ///< their registration never fails
    };
    static constexpr int selectedRegion = -1;

    SoakCamera() = default;
    virtual ~SoakCamera() = default;
    Q_DISABLE_COPY_MOVE(SoakCamera)

    const Character& character() const { return m_character; }
    bool isLost() const { return m_isLost; }
    virtual std::vector<ZebCPP::FeaturePtr> features() const = 0;
    virtual std::size_t observerCount() const = 0;

    // Direct sight.
    /// Empty when there is no such feature.
    virtual QString text(const QString& feature, int region = selectedRegion) const = 0;
    bool has(const QString& feature) const { return !text(feature).isEmpty(); }
    virtual sim::Snapshot state() const = 0;
    /// As "feature=value", since the last call; adds all calls that reached the camera.
    virtual QStringList takeWrites(std::uint64_t& calls) = 0;

    // What happens to it.
    virtual void setStreaming(bool) { }
    virtual void writeFromOutside() = 0; ///< something legal, by another client
    virtual void distort() = 0;
    virtual void lose(std::chrono::milliseconds callTime) = 0;
    /// From four threads, while the module works on.
    virtual void burst(int) { }
    virtual void behave() = 0; ///< from now on
    /// Waits for those under way; false when it never sends any.
    virtual bool flushNotifications() { return true; }

protected:
    Character m_character;
    bool m_isLost = false;
};

std::unique_ptr<SoakCamera> createMisbehavingCamera(const std::string& model, Random& random,
                                                    Report& report);
/// One that speaks GenICam.
std::unique_ptr<SoakCamera> createGenicamCamera(Random& random, Report& report);
