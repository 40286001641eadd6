#include "AllocationCount.h"
#include "Effort.h"
#include "PlainCamera.h"
#include "Row.h"
#include "features/FeatureManager.h"

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

// Finding the last of many features, which asks all of them for their names.

namespace {

constexpr int featureCount = 1000;

class Lookup
{
public:
    Lookup()
        : m_camera(cameraWith(featureCount))
        , m_manager(m_camera.wrappers())
    {
        for (const QString& name : m_manager.GetFeatureNames())
            m_names.push_back(name.toStdString());
        m_wanted = QString::fromStdString(m_names.back());
    }

    void find() { m_found += m_manager.HasFeature(m_wanted); }

    void compareNames()
    {
        const std::string wanted = m_wanted.toStdString();
        m_found += std::find(m_names.begin(), m_names.end(), wanted) != m_names.end();
    }

    std::size_t calls()
    {
        m_camera.resetCalls();
        find();
        return m_camera.calls();
    }

    std::size_t allocations() { return allocationsOf(m_manager); }

    /// The same for the last feature alone.
    std::size_t allocationsOfOneStep()
    {
        auto last = FeatureManager::Wrappers::create();
        last->append(std::make_shared<ZebFeatureWrapper>(m_camera.features()->last()));
        FeatureManager manager(last);
        return allocationsOf(manager);
    }

private:
    std::size_t allocationsOf(FeatureManager& manager)
    {
        const std::size_t before = allocationCount();
        m_found += manager.HasFeature(m_wanted);
        return allocationCount() - before;
    }

    PlainCamera m_camera;
    FeatureManager m_manager;
    std::vector<std::string> m_names;
    QString m_wanted;
    int m_found = 0; ///< keeps the searches from being optimised away
};

} // namespace

void addLookupRows()
{
    const auto effort = std::make_shared<Effort>();
    const auto target = effort->countsInstructions() ? std::optional(350.0) : std::nullopt;
    addMeasurement("find/1000", std::string(effort->unit()) + " a name", target, [=] {
        return Measurement{effort->inRow("find/1000", [&] {
            Lookup lookup;
            double least = std::numeric_limits<double>::infinity();
            for (int walk = 0; walk < (effort->countsInstructions() ? 5 : 20000); ++walk)
                least = std::min(least, effort->of([&] { lookup.find(); }));
            return least / featureCount;
        })};
    });
    addMeasurement("find/1000/calls", "SDK calls a name", 2.0, [] {
        return Measurement{static_cast<double>(Lookup().calls()) / featureCount};
    });
    addComparison("find/1000/in-place", "std::find over a vector of strings", std::nullopt,
                  {2000, 100}, []() -> Contest {
                      const auto lookup = std::make_shared<Lookup>();
                      return {[lookup] { lookup->find(); }, [lookup] { lookup->compareNames(); }};
                  });
    addMeasurement("find/1000/allocations", "allocations while walking", 0.0, [] {
        Lookup lookup;
        const auto longWalk = static_cast<double>(lookup.allocations());
        const auto oneStep = static_cast<double>(lookup.allocationsOfOneStep());
        return Measurement{longWalk - oneStep, {{"before-the-walk", oneStep}}};
    });
}
