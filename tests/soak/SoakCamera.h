#pragma once

#include "Report.h"

#include "simulator/Snapshot.h"

#include <ZebCPP/ZebCPP.h>

#include <QStringList>

#include <chrono>
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
    struct Account
    {
        QStringList writes; ///< as "feature=value"
        std::uint64_t calls = 0;
    };

    SoakCamera() = default;
    virtual ~SoakCamera() = default;
    Q_DISABLE_COPY_MOVE(SoakCamera)

    const Character& character() const { return m_character; }
    virtual std::vector<ZebCPP::FeaturePtr> features() const = 0;
    virtual std::size_t observerCount() const = 0;

    // Direct sight.
    virtual bool has(const QString& feature) const = 0;
    virtual QString text(const QString& feature) const = 0;
    virtual QString textOfRegion(const QString& feature, int region) const = 0;
    virtual sim::Snapshot state() const = 0;
    /// What reached it since the last call.
    virtual Account takeAccount() = 0;
    virtual void tellFigures(Report&) const { }

    // What happens to it.
    virtual void setStreaming(bool) { }
    virtual void writeFromOutside() = 0; ///< something legal, by another client
    virtual void distort() = 0;
    virtual void lose(std::chrono::milliseconds callTime) = 0;
    /// From four threads, while the module works on.
    virtual void burst(int) { }
    virtual void behave() = 0; ///< from now on
    virtual bool notifies() const { return true; }
    virtual void flushNotifications() { }

protected:
    Character m_character;
};
