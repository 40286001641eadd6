#include "Misbehaviour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>

namespace {

using sim::Failure;
using sim::FailureInjector;
using sim::Occurrence;
using sim::Operation;
using sim::Operations;

constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

/// What comes from the camera; names, types and descriptions come from the SDK's memory.
constexpr Operations cameraReads = Operations(Operation::GetValue) | Operation::GetRange
    | Operation::GetIncrement | Operation::IsReadable | Operation::IsWritable;

sim::Value oddValue(Random& random)
{
    switch (random.below(4)) {
    case 0:
        return random.pick<std::int64_t>(
            {0, 1, -1, 7, smallest, largest, largest / 2, std::int64_t{1} << 31});
    case 1:
        return random.pick(
            {double(NAN), infinity, -infinity, 0.5, -1.0, 1e300, -1e300, 1e-300, 9.3e18});
    case 2:
        return random.oneIn(2);
    default:
        return random.pick<std::string>(
            {"", "Unknown", "\xFF\xFE%1", std::string(100000, 'x'), "%1 %2 <b>"});
    }
}

std::string oddText(Random& random)
{
    return random.pick<std::string>(
        {"", std::string(1 << 20, '.'), "\xC3\x28\xFF\x80", "%1 %s %n <img src='x'/>", "\n\t "});
}

Failure someFailure(Failure::Kind kind, Random& random)
{
    if (kind == Failure::Kind::None)
        return Failure::slow(std::chrono::milliseconds(random.between(1, 5)));
    if (kind == Failure::Kind::Substitute) {
        const auto values = std::make_shared<Random>(random.next());
        return Failure::value([values](const sim::Value&) { return oddValue(*values); });
    }
    Failure failure = Failure::of(kind);
    failure.code = static_cast<ZebErrorType>(random.pick({-1, -3, -4, -6, -7, -12, -14, -99}));
    return failure;
}

Occurrence aWhile(Random& random, int latestStart, int shortest, int longest)
{
    auto result = Occurrence::from(static_cast<std::uint64_t>(random.between(1, latestStart)));
    result.count = static_cast<std::uint64_t>(random.between(shortest, longest));
    return result;
}

std::vector<std::string> namesOf(const sim::Camera& camera)
{
    std::vector<std::string> names;
    for (const ZebCPP::FeaturePtr& feature : camera.features()) {
        std::array<char, 256> buffer{};
        std::uint32_t length = buffer.size();
        if (feature->GetName(buffer.data(), length) == ZebErrorSuccess)
            names.emplace_back(buffer.data());
    }
    return names;
}

} // namespace

Misbehaviour::Misbehaviour(sim::Camera& camera, Random& random)
    : m_camera(camera)
    , m_failures(camera.failures())
    , m_random(random)
    , m_names(namesOf(camera))
{
}

std::string Misbehaviour::anyObservedFeature()
{
    std::vector<std::string> observed;
    for (const std::string& name : m_names) {
        if (m_camera.observerCount(name) > 0)
            observed.push_back(name);
    }
    return observed.empty() ? std::string() : m_random.pick(observed);
}

bool Misbehaviour::tire()
{
    const int fault = m_random.below(6);
    if (fault == 0)
        m_failures.add(FailureInjector::anyFeature, Operations::writes(), Failure::refuse(),
                       Occurrence::randomly(0.1, m_random.next()));
    for (const std::string& name : m_names) {
        if (fault == 1 && name != "DeviceVendorName")
            m_failures.add(name, cameraReads, Failure::refuse(),
                           Occurrence::randomly(0.02, m_random.next()));
    }
    std::vector<std::string> present;
    for (const char* name : {"PixelFormat", "BinningHorizontal", "ReverseX", "OffsetY", "Width",
                             "AutofunctionAOIWidth", "ExposureAutoMax", "SubRegionWidth"}) {
        if (m_camera.has(name))
            present.emplace_back(name);
    }
    if (fault == 2 && !present.empty()) {
        const Occurrence while_ = aWhile(m_random, 20, 2, 40);
        Failure failure = Failure::refuse();
        failure.delay = std::chrono::milliseconds(120);
        m_failures.add(m_random.pick(present), cameraReads, failure, while_);
    }
    return fault <= 2;
}

void Misbehaviour::spoil(bool withObservers)
{
    const Operations kept = withObservers
        ? Operations()
        : Operations(Operation::RegisterObserver) | Operation::UnregisterObserver;
    for (int k = 0; k < static_cast<int>(Failure::kindCount); ++k) {
        const auto kind = static_cast<Failure::Kind>(k);
        if (kind == Failure::Kind::Lose || m_random.oneIn(2))
            continue;
        // What the camera stores in place of the written value has to be a value of its own.
        const auto operations = kind == Failure::Kind::Substitute
            ? Operations::all().without(Operation::SetValue)
            : Operations::all();
        const bool isSlow = kind == Failure::Kind::None;
        const double probability = isSlow ? 0.00002 : m_random.pick({0.0002, 0.002, 0.01, 0.05});
        m_failures.add(FailureInjector::anyFeature, operations.without(kept),
                       someFailure(kind, m_random),
                       Occurrence::randomly(probability, m_random.next()));
    }
    if (m_random.oneIn(4)) {
        for (const char* selector : {"SubRegionSelector", "BinningSelector"})
            m_failures.add(selector, Operations::writes(), Failure::refuse(),
                           Occurrence::randomly(m_random.pick({0.1, 1.0}), m_random.next()));
    }
    // Some features are gone for a while, and are refused when they are back.
    for (int i = m_random.below(4); i > 0; --i) {
        const Occurrence while_ = aWhile(m_random, 200, 1, 500);
        const std::string& name = anyFeature();
        m_failures.add(name, Operations::all().without(kept), Failure::refuse(ZebErrorNotFound),
                       while_);
        m_failures.add(name, Operations::writes(), Failure::refuse(),
                       Occurrence::from(while_.first + while_.count));
    }
}

void Misbehaviour::distort()
{
    const std::string& name = anyFeature();
    if (m_random.oneIn(2)) {
        distortNumbers(name);
        return;
    }
    const int what = m_random.below(4);
    const std::string text = oddText(m_random);
    m_camera.modify(name, [&](sim::FeatureDescription& feature) {
        const bool isEnumeration = feature.type == ZebFeatureDataEnum;
        if (what == 0) {
            feature.displayName = feature.toolTip = feature.unit = text;
            feature.description = feature.category = feature.representation = text;
        } else if (what == 1) {
            feature.readOnly();
        } else if (what == 2) {
            feature.readableIf([](const sim::State&) { return false; });
        } else if (isEnumeration && m_random.oneIn(2)) {
            feature.entries.clear();
        } else if (isEnumeration) {
            feature.entries.push_back({text, 4711});
        }
    });
    if (what == 3 && m_camera.feature(name).description().type == ZebFeatureDataEnum)
        m_camera.force(name, "Unknown");
}

// The camera tells odd bounds and increments from now on, and goes by its own.
void Misbehaviour::distortNumbers(const std::string& name)
{
    const auto bounds
        = m_random.pick<std::pair<sim::Value, sim::Value>>({{100, 10},
                                                            {0, 0},
                                                            {-5, -1},
                                                            {smallest, largest},
                                                            {0, largest},
                                                            {double(NAN), double(NAN)},
                                                            {-infinity, infinity},
                                                            {5.0, -5.0}});
    const auto increment = m_random.pick<sim::Value>(
        {0, -1, 1000000, largest, smallest, double(NAN), infinity, 1e-300});
    m_failures.add(name, Operation::GetRange, Failure::range(bounds.first, bounds.second));
    if (m_random.oneIn(2))
        m_failures.add(name, Operation::GetIncrement, Failure::value(increment));
    m_camera.announce(name);
}

void Misbehaviour::writeFromOutside()
{
    const std::string& name = anyFeature();
    const sim::FeatureProbe feature = m_camera.feature(name);
    if (!feature.isWritable())
        return;
    const sim::FeatureDescription description = feature.description();
    if (description.type == ZebFeatureDataInt) {
        constexpr std::int64_t far = std::int64_t{1} << 40;
        const sim::IntegerRange range = feature.range();
        const std::int64_t step = std::max<std::int64_t>(range.increment, 1);
        if (range.minimum > range.maximum || range.minimum < -far || range.maximum > far)
            return;
        const std::int64_t steps = (range.maximum - range.minimum) / step;
        const auto wanted = static_cast<std::int64_t>(m_random.next() >> 1) % (steps + 1);
        m_camera.writeAsOtherClient(name, range.minimum + wanted * step);
    } else if (description.type == ZebFeatureDataFloat) {
        m_camera.writeAsOtherClient(name, feature.number() * m_random.pick({0.5, 1.0, 1.5}));
    } else if (description.type == ZebFeatureDataBool) {
        m_camera.writeAsOtherClient(name, m_random.oneIn(2));
    } else if (description.type == ZebFeatureDataEnum && !description.entries.empty()) {
        m_camera.writeAsOtherClient(name, m_random.pick(description.entries).name);
    }
}
