#include "AllocationCount.h"
#include "PlainCamera.h"
#include "Row.h"
#include "features/FeatureManager.h"

#include <algorithm>
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

    /// The same steps with the names at hand: each is taken over, then compared.
    void copyNames()
    {
        const std::string wanted = m_wanted.toStdString();
        std::string candidate;
        for (const std::string& name : m_names) {
            candidate = name;
            if (candidate == wanted) {
                ++m_found;
                return;
            }
        }
    }

    void compareNames()
    {
        const std::string wanted = m_wanted.toStdString();
        m_found += std::find(m_names.begin(), m_names.end(), wanted) != m_names.end();
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
    const Sampling sampling{2000, 100};
    addComparison("find/1000", "the same walk over a vector of strings", 3.0, sampling,
                  []() -> Contest {
                      const auto lookup = std::make_shared<Lookup>();
                      return {[lookup] { lookup->find(); }, [lookup] { lookup->copyNames(); }};
                  });
    addComparison("find/1000/in-place", "std::find over a vector of strings", std::nullopt,
                  sampling, []() -> Contest {
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
