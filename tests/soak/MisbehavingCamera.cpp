#include "MisbehavingCamera.h"

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
constexpr Operations observing
    = Operations(Operation::RegisterObserver) | Operation::UnregisterObserver;

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

MisbehavingCamera::MisbehavingCamera(const std::string& model, Random& random)
    : m_random(random)
{
    using Settings = sim::NotificationSettings;
    const bool isHonest = m_character.isHonest = random.oneIn(2);
    const bool hasThreads = m_character.hasThreads = random.oneIn(3);
    sim::CameraOptions options;
    options.rounds = !isHonest && random.oneIn(3);
    options.extraFeatures = random.oneIn(20) ? 500 : 0;
    options.notifications = hasThreads
        ? Settings::asynchronous(std::chrono::milliseconds(random.between(0, 20)))
        : random.oneIn(4) ? Settings::off()
                          : Settings::synchronous();
    options.notifications.repeats = random.pick({1, 1, 3});
    options.notifications.onRegistration = random.oneIn(3);
    options.notifications.lateAfterUnregistration = hasThreads && random.oneIn(3);
    options.notifications.cascades = isHonest || random.oneIn(2);
    m_camera = sim::createCamera(model, options);
    m_camera->journal().record(Operations::writes());
    m_names = namesOf(*m_camera);
    isHonest ? tire() : spoil();
}

MisbehavingCamera::~MisbehavingCamera()
{
    if (m_crowd.joinable())
        m_crowd.join();
}

bool MisbehavingCamera::has(const QString& feature) const
{
    return m_camera->has(feature.toStdString());
}

QString MisbehavingCamera::text(const QString& feature) const
{
    return QString::fromStdString(m_camera->feature(feature.toStdString()).text());
}

QString MisbehavingCamera::textOfRegion(const QString& feature, int region) const
{
    return QString::fromStdString(m_camera->feature(feature.toStdString()).textAt(region));
}

SoakCamera::Account MisbehavingCamera::takeAccount()
{
    sim::Journal& journal = m_camera->journal();
    Account account;
    for (const sim::JournalEntry& entry : journal.writes())
        account.writes << QString::fromStdString(entry.feature + '=' + entry.value.toText());
    account.calls = journal.count();
    journal.clear();
    return account;
}

void MisbehavingCamera::tellFigures(Report& report) const
{
    for (std::size_t kind = 0; kind < Failure::kindCount; ++kind)
        report["injected failures"]
            += m_camera->failures().injected(static_cast<Failure::Kind>(kind));
    report["notifications"] += m_camera->notificationCount();
}

bool MisbehavingCamera::notifies() const
{
    return m_camera->notifications().mode != sim::NotificationSettings::Mode::Off;
}

void MisbehavingCamera::failByChance(const std::string& name, const Operations& operations,
                                     const Failure& failure, double probability)
{
    m_camera->failures().add(name, operations, failure,
                             Occurrence::randomly(probability, m_random.next()));
}

Occurrence MisbehavingCamera::aWhile(int latestStart, int shortest, int longest)
{
    auto result = Occurrence::from(static_cast<std::uint64_t>(m_random.between(1, latestStart)));
    result.count = static_cast<std::uint64_t>(m_random.between(shortest, longest));
    return result;
}

// What an honest camera may do, or nothing.
void MisbehavingCamera::tire()
{
    const int fault = m_random.below(6);
    m_character.isStrict = fault > 2;
    if (fault == 0)
        failByChance(FailureInjector::anyFeature, Operations::writes(), Failure::refuse(), 0.1);
    for (const std::string& name : m_names) {
        if (fault == 1 && name != "DeviceVendorName")
            failByChance(name, cameraReads, Failure::refuse(), 0.02);
    }
    if (fault != 2)
        return;
    std::vector<std::string> present;
    for (const char* name : {"PixelFormat", "BinningHorizontal", "ReverseX", "OffsetY", "Width",
                             "AutofunctionAOIWidth", "ExposureAutoMax", "SubRegionWidth"}) {
        if (m_camera->has(name))
            present.emplace_back(name);
    }
    Failure failure = Failure::refuse();
    failure.delay = std::chrono::milliseconds(120);
    if (!present.empty())
        m_camera->failures().add(m_random.pick(present), cameraReads, failure, aWhile(20, 2, 40));
}

// Every operation goes wrong now and then.
void MisbehavingCamera::spoil()
{
    m_character.isStrict = false;
    m_character.countsObservers = !m_random.oneIn(4);
    const Operations all
        = m_character.countsObservers ? Operations::all().without(observing) : Operations::all();
    for (int k = 0; k < static_cast<int>(Failure::kindCount); ++k) {
        const auto kind = static_cast<Failure::Kind>(k);
        if (kind == Failure::Kind::Lose || m_random.oneIn(2))
            continue;
        // What the camera stores in place of the written value has to be a value of its own.
        const auto operations
            = kind == Failure::Kind::Substitute ? all.without(Operation::SetValue) : all;
        failByChance(FailureInjector::anyFeature, operations, someFailure(kind, m_random),
                     kind == Failure::Kind::None ? 0.00002
                                                 : m_random.pick({0.0002, 0.002, 0.01, 0.05}));
    }
    if (m_random.oneIn(4)) {
        for (const char* selector : {"SubRegionSelector", "BinningSelector"})
            failByChance(selector, Operations::writes(), Failure::refuse(),
                         m_random.pick({0.1, 1.0}));
    }
    // Some features are gone for a while, and are refused when they are back.
    for (int i = m_random.below(4); i > 0; --i) {
        const Occurrence while_ = aWhile(200, 1, 500);
        const std::string& name = anyFeature();
        m_camera->failures().add(name, all, Failure::refuse(ZebErrorNotFound), while_);
        m_camera->failures().add(name, Operations::writes(), Failure::refuse(),
                                 Occurrence::from(while_.first + while_.count));
    }
}

void MisbehavingCamera::distort()
{
    const std::string& name = anyFeature();
    if (m_random.oneIn(2)) {
        distortNumbers(name);
        return;
    }
    const int what = m_random.below(4);
    const std::string text = oddText(m_random);
    m_camera->modify(name, [&](sim::FeatureDescription& feature) {
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
    if (what == 3 && m_camera->feature(name).description().type == ZebFeatureDataEnum)
        m_camera->force(name, "Unknown");
}

// The camera tells odd bounds and increments from now on, and goes by its own.
void MisbehavingCamera::distortNumbers(const std::string& name)
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
    m_camera->failures().add(name, Operation::GetRange,
                             Failure::range(bounds.first, bounds.second));
    if (m_random.oneIn(2))
        m_camera->failures().add(name, Operation::GetIncrement, Failure::value(increment));
    m_camera->announce(name);
}

void MisbehavingCamera::writeFromOutside()
{
    const std::string& name = anyFeature();
    const sim::FeatureProbe feature = m_camera->feature(name);
    if (!feature.isWritable())
        return;
    const sim::FeatureDescription description = feature.description();
    if (description.type == ZebFeatureDataInt) {
        const sim::IntegerRange range = feature.range();
        if (const auto value = m_random.onGrid(range.minimum, range.maximum, range.increment))
            m_camera->writeAsOtherClient(name, *value);
    } else if (description.type == ZebFeatureDataFloat) {
        m_camera->writeAsOtherClient(name, feature.number() * m_random.pick({0.5, 1.0, 1.5}));
    } else if (description.type == ZebFeatureDataBool) {
        m_camera->writeAsOtherClient(name, m_random.oneIn(2));
    } else if (description.type == ZebFeatureDataEnum && !description.entries.empty()) {
        m_camera->writeAsOtherClient(name, m_random.pick(description.entries).name);
    }
}

void MisbehavingCamera::burst(int count)
{
    std::vector<std::string> observed;
    for (const std::string& name : m_names) {
        if (m_camera->observerCount(name) > 0)
            observed.push_back(name);
    }
    if (!m_character.hasThreads || m_crowd.joinable() || observed.empty())
        return;
    m_crowd = std::thread(
        [this, count, name = m_random.pick(observed)] { m_camera->burst(name, count, 4); });
}
