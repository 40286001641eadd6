#include "SoakCamera.h"

#include "simulator/Camera.h"

#include <array>
#include <cmath>
#include <limits>
#include <thread>

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

/// What the camera stores in place of the written value has to be a value of its own.
constexpr Operations answers = Operations::all().without(Operation::SetValue);

const sim::Value& oddValue(Random& random)
{
    static const std::vector<sim::Value> numbers{0,        -1,      7,
                                                 smallest, largest, std::int64_t{1} << 31};
    static const std::vector<sim::Value> reals{double(NAN), infinity, -infinity,
                                               0.5,         -1e300,   1e-300};
    static const std::vector<sim::Value> texts{"", "Unknown", "\xFF\xFE%1 %s <b>\n",
                                               std::string(1 << 20, 'x')};
    return random.pick(random.pick({&numbers, &reals, &texts})[0]);
}

Failure someFailure(Failure::Kind kind, Random& random)
{
    if (kind == Failure::Kind::None)
        return Failure::slow(std::chrono::milliseconds(random.between(1, 5)));
    if (kind == Failure::Kind::Substitute)
        return Failure::value([values = std::make_shared<Random>(random.next())](
                                  const sim::Value&) { return oddValue(*values); });
    Failure failure = Failure::of(kind);
    failure.code = static_cast<ZebErrorType>(random.pick({-1, -3, -4, -6, -7, -12, -14, -99}));
    return failure;
}

/// A simulated camera that does much of it wrong, all from the seed.
class MisbehavingCamera : public SoakCamera
{
public:
    MisbehavingCamera(const std::string& model, Random& random, Report& report)
        : m_random(random)
        , m_report(report)
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
        for (const ZebCPP::FeaturePtr& feature : m_camera->features()) {
            std::array<char, 256> name{};
            std::uint32_t length = name.size();
            feature->GetName(name.data(), length);
            m_names.emplace_back(name.data());
        }
        isHonest ? tire() : spoil();
    }

    ~MisbehavingCamera() override
    {
        if (m_crowd.joinable())
            m_crowd.join();
        for (std::size_t kind = 0; kind < Failure::kindCount; ++kind)
            m_report["injected failures"]
                += m_camera->failures().injected(static_cast<Failure::Kind>(kind));
        m_report["notifications"] += m_camera->notificationCount();
    }

    std::vector<ZebCPP::FeaturePtr> features() const override { return m_camera->features(); }
    std::size_t observerCount() const override { return m_camera->observerCount(); }
    sim::Snapshot state() const override { return m_camera->snapshot(); }
    void setStreaming(bool is) override { m_camera->setStreaming(is); }
    void behave() override { m_camera->failures().clear(); }

    void lose(std::chrono::milliseconds callTime) override
    {
        m_isLost = true;
        m_camera->lose(callTime);
    }

    QString text(const QString& feature, int region) const override
    {
        if (!m_camera->has(feature.toStdString()))
            return {};
        const sim::FeatureProbe probe = m_camera->feature(feature.toStdString());
        return QString::fromStdString(region == selectedRegion ? probe.text()
                                                               : probe.textAt(region));
    }

    QStringList takeWrites(std::uint64_t& calls) override
    {
        sim::Journal& journal = m_camera->journal();
        QStringList writes;
        for (const sim::JournalEntry& entry : journal.writes())
            writes << QString::fromStdString(entry.feature + '=' + entry.value.toText());
        calls += journal.count();
        journal.clear();
        return writes;
    }

    bool flushNotifications() override
    {
        m_camera->flushNotifications();
        return m_camera->notifications().mode != sim::NotificationSettings::Mode::Off;
    }

    // From now on; bounds and increments are odd while the camera goes by its own.
    void distort() override
    {
        const std::string& name = anyFeature();
        const int what = m_random.below(6);
        m_camera->modify(name, [=](sim::FeatureDescription& feature) {
            if (what == 0)
                feature.readOnly();
            else if (what == 1)
                feature.readableIf([](const sim::State&) { return false; });
            else if (what == 2)
                feature.entries.clear();
        });
        if (what > 2)
            failByChance(name, answers, someFailure(Failure::Kind::Substitute, m_random),
                         m_random.pick({0.1, 1.0}));
        m_camera->announce(name);
    }

    void writeFromOutside() override
    {
        const std::string& name = anyFeature();
        const sim::FeatureProbe feature = m_camera->feature(name);
        if (!feature.isWritable())
            return;
        const sim::FeatureDescription description = feature.description();
        sim::Value value = feature.number() * m_random.pick({0.5, 1.0, 1.5});
        if (description.type == ZebFeatureDataInt)
            value = feature.integer()
                + feature.range().increment * m_random.pick({-100, -10, -1, 1, 10, 100});
        else if (description.type == ZebFeatureDataBool)
            value = m_random.oneIn(2);
        else if (!description.entries.empty())
            value = m_random.pick(description.entries).name;
        m_camera->writeAsOtherClient(name, value); // which refuses what is illegal
    }

    void burst(int count) override
    {
        const std::string& name = anyFeature();
        if (m_character.hasThreads && !m_crowd.joinable() && m_camera->observerCount(name) > 0)
            m_crowd = std::thread([=] { m_camera->burst(name, count, 4); });
    }

private:
    const std::string& anyFeature() { return m_random.pick(m_names); }

    void failByChance(const std::string& name, const Operations& operations, const Failure& failure,
                      double probability)
    {
        m_camera->failures().add(name, operations, failure,
                                 Occurrence::randomly(probability, m_random.next()));
    }

    Occurrence aWhile(int latestStart, int shortest, int longest)
    {
        return {static_cast<std::uint64_t>(m_random.between(1, latestStart)),
                static_cast<std::uint64_t>(m_random.between(shortest, longest))};
    }

    // What an honest camera may do, or nothing.
    void tire()
    {
        const int fault = m_random.below(5);
        m_character.isStrict = fault > 2;
        for (const std::string& name : m_names) {
            // A region that cannot be selected cannot be shown.
            const bool selects = name == "SubRegionSelector";
            if (fault == 0)
                failByChance(name, selects ? Operations() : Operations::writes(), Failure::refuse(),
                             m_random.pick({0.1, 1.0}));
            if (fault == 1 && name != "DeviceVendorName")
                failByChance(name, cameraReads, Failure::refuse(), 0.02);
        }
        Failure late = Failure::refuse();
        late.delay = std::chrono::milliseconds(120);
        const char* const name = m_random.pick({"PixelFormat", "BinningHorizontal", "OffsetY",
                                                "Width", "ExposureAutoMax", "SubRegionWidth"});
        if (fault == 2)
            m_camera->failures().add(name, cameraReads, late, aWhile(20, 2, 40));
    }

    // Every operation goes wrong now and then.
    void spoil()
    {
        m_character.isStrict = false;
        m_character.countsObservers = !m_random.oneIn(4);
        Operations all = Operations::all();
        if (m_character.countsObservers)
            all = all.without(Operation::RegisterObserver).without(Operation::UnregisterObserver);
        for (int k = 0; k < static_cast<int>(Failure::kindCount); ++k) {
            const auto kind = static_cast<Failure::Kind>(k);
            if (kind == Failure::Kind::Lose || m_random.oneIn(2))
                continue;
            failByChance(
                FailureInjector::anyFeature, kind == Failure::Kind::Substitute ? answers : all,
                someFailure(kind, m_random),
                kind == Failure::Kind::None ? 0.00002 : m_random.pick({0.0002, 0.002, 0.01, 0.05}));
        }
        // Some features are gone for a while, and are refused when they are back.
        for (int i = m_random.below(4); i > 0; --i) {
            const Occurrence while_ = aWhile(200, 1, 500);
            const std::string name
                = m_random.pick({"SubRegionSelector", "BinningSelector", anyFeature().c_str()});
            m_camera->failures().add(name, all, Failure::refuse(ZebErrorNotFound), while_);
            m_camera->failures().add(name, Operations::writes(), Failure::refuse(),
                                     Occurrence::from(while_.first + while_.count));
        }
    }

    Random& m_random;
    Report& m_report;
    std::unique_ptr<sim::Camera> m_camera;
    std::vector<std::string> m_names;
    std::thread m_crowd;
};

} // namespace

std::unique_ptr<SoakCamera> createMisbehavingCamera(const std::string& model, Random& random,
                                                    Report& report)
{
    return std::make_unique<MisbehavingCamera>(model, random, report);
}
