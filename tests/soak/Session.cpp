#include "Session.h"

#include "Actions.h"
#include "Invariants.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include "simulator/Model.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTranslator>

#include <sys/resource.h>

namespace {

constexpr std::chrono::milliseconds lostCallTime{300};
constexpr std::chrono::milliseconds longestLostStep{2000};
/// A picture of the largest size that is taken needs as much.
constexpr std::int64_t mostMemory = (std::int64_t{1} << 30) + (std::int64_t{1} << 29);
constexpr int dialogInterval = 40;

std::int64_t largestMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024;
}

} // namespace

Session::Session(const Run& run, std::uint64_t seed, const std::string& model)
    : random(seed)
    , m_run(run)
    , m_seed(seed)
    , m_dialogTimer(this)
{
    Watchdog::setPlace(seed, 0, m_action);
    const auto models = sim::modelNames();
    m_model = model.empty() ? random.pick(models) : model;
    // With hundreds of regions a session takes as long as dozens of others.
    if (m_model == "multi-region-256" && !random.oneIn(8))
        m_model = random.pick(models);
    prepareCamera();
    const int folder = random.pick({0, 0, 1, 2});
    m_isTranslated = folder == 0;
    QDir::setCurrent(m_run.translationFolders[folder]);
    qDeleteAll(qApp->findChildren<QTranslator*>()); // or else the first page's would serve all
    VirtualTime::start(m_hasThreads ? VirtualTime::Pace::Fast : VirtualTime::Pace::Exact);
    QApplication::setPalette(QPalette(Qt::lightGray));
    m_host = std::make_unique<Host>();
    m_host->lastFrame = QPixmap(320, 200);
    connect(&m_dialogTimer, &QTimer::timeout, this, &Session::answerDialog);
    m_dialogTimer.start(dialogInterval);
}

void Session::prepareCamera()
{
    using Settings = sim::NotificationSettings;
    m_isHonest = random.oneIn(2);
    m_hasThreads = random.oneIn(3);

    sim::CameraOptions options;
    options.rounds = !m_isHonest && random.oneIn(3);
    options.extraFeatures = random.oneIn(20) ? 500 : 0;
    options.notifications = m_hasThreads
        ? Settings::asynchronous(std::chrono::milliseconds(random.between(0, 20)))
        : random.oneIn(4) ? Settings::off()
                          : Settings::synchronous();
    options.notifications.repeats = random.pick({1, 1, 3});
    options.notifications.onRegistration = random.oneIn(3);
    options.notifications.lateAfterUnregistration = m_hasThreads && random.oneIn(3);
    options.notifications.cascades = m_isHonest || random.oneIn(2);
    m_camera = sim::createCamera(m_model, options);
    m_camera->journal().record(sim::Operations::writes());
    m_misbehaviour = std::make_unique<Misbehaviour>(*m_camera, random);

    const auto features = m_camera->features();
    m_features = TabExtensionInterface::FeatureList::create(features.begin(), features.end());
    if (m_isHonest) {
        m_isStrict = !m_misbehaviour->tire();
        return;
    }
    m_countsObservers = !random.oneIn(4);
    m_misbehaviour->spoil(!m_countsObservers);
    if (random.oneIn(4))
        m_features->insert(random.below(m_features->size()), nullptr);
}

void Session::run()
{
    const std::int64_t memory = largestMemory();
    openPage();
    const int steps = random.between(10, 80);
    for (m_step = 1; m_step <= steps && m_page; ++m_step) {
        step();
        if (!m_page && random.oneIn(2))
            openPage();
        if (m_isLost && random.oneIn(4))
            break;
    }
    m_action = "closing";
    if (m_page && m_isHonest)
        Invariants::checkAtRest(*this);
    if (random.oneIn(5) && !m_isHonest)
        closeCamera(); // before its page
    if (m_page)
        closePage(!random.oneIn(2));
    m_dialogTimer.stop();
    closeCamera();
    m_host.reset();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    checkRest(memory);
    if (m_run.isVerbose)
        std::fprintf(stderr, "digest %llx\n", static_cast<unsigned long long>(m_digest));
    m_run.report["sessions run"] += 1;
    m_run.report["sessions without threads"] += m_hasThreads ? 0 : 1;
}

void Session::checkRest(std::int64_t memoryBefore)
{
    if (QApplication::overrideCursor())
        find("a cursor is left");
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    if (!QApplication::topLevelWidgets().isEmpty())
        find("a window is left");
    const std::int64_t growth = largestMemory() - memoryBefore;
    if (growth > mostMemory)
        find(QString("it took %1 MiB").arg(growth >> 20));
}

void Session::closeCamera()
{
    if (m_crowd.joinable())
        m_crowd.join();
    if (!m_camera)
        return;
    account();
    for (std::size_t kind = 0; kind < sim::Failure::kindCount; ++kind)
        m_run.report["injected failures"]
            += m_camera->failures().injected(static_cast<sim::Failure::Kind>(kind));
    m_run.report["notifications"] += m_camera->notificationCount();
    m_misbehaviour.reset();
    m_camera.reset();
}

void Session::step()
{
    const Action& action = pickAction(random);
    m_action = action.name;
    Watchdog::setPlace(m_seed, m_step, m_action);
    m_run.report["user actions"] += 1;
    if (m_run.isVerbose)
        std::fprintf(stderr, "%d %s\n", m_step, m_action);
    const bool isTimed = m_isLost && action.isShort;
    const auto begin = Watchdog::guiTime();
    action.perform(*this);
    if (isTimed)
        checkLostTime(begin);
    if (m_isHonest && m_page)
        Invariants::checkRegions(*this);
    if (!m_isLost && random.oneIn(3))
        pass(random.pick({0, 10, 60, 250, 1100}));
}

void Session::pass(int milliseconds)
{
    Watchdog::beat();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    Watchdog::beat();
}

void Session::resize(int width, int height)
{
    m_host->resize(width, height);
    if (m_page)
        m_page->setGeometry(m_host->rect());
}

void Session::resizeByChance(int least, int mostWidth, int mostHeight)
{
    const int height = random.between(least, mostHeight);
    resize(random.between(least, mostWidth), height);
}

void Session::openPage()
{
    auto* const page = new QWidget;
    page->setParent(m_host.get());
    m_page = page;
    const auto connections = Host::connections();
    takeWrites();
    Watchdog::beat();
    qint32 result = -1;
    try {
        result
            = m_run.module.createTab(m_features, page, random.oneIn(20) ? nullptr : &connections);
    } catch (...) {
        find("an exception came out of createTab");
    }
    m_run.report[result == 0 ? "pages opened" : "pages refused"] += 1;
    if (result != 0) {
        checkRefusal();
        delete page;
        return;
    }
    const char* const text = "Pixel Format: ";
    if (m_isTranslated == (QCoreApplication::translate("ImageFormatWidget", text) == text))
        find("the texts are not those of the translation files");
    // A region told by its edges that is invalid gives way to the whole picture.
    const QString writes = takeWrites({"SubRegionSelector", "DSPSubregionLeft", "DSPSubregionTop",
                                       "DSPSubregionRight", "DSPSubregionBottom"});
    if (m_isHonest && !writes.isEmpty())
        find("opening wrote " + writes);
    resize(700, 900);
    page->show();
    m_host->show();
    QApplication::setActiveWindow(m_host.get());
    pass(random.pick({0, 30, 1300}));
}

void Session::checkRefusal()
{
    if (m_page->layout() || !m_page->children().isEmpty() || !m_page->accessibleName().isEmpty())
        find("a refused page is not as it was");
    if (m_isHonest && m_camera->has("Height") && m_camera->has("Width")
        && m_camera->feature("DeviceVendorName").text().rfind("Brontax", 0) == 0)
        find("the camera was refused");
}

void Session::closePage(bool isHiddenFirst)
{
    if (!m_page)
        return;
    const std::chrono::nanoseconds begin = Watchdog::guiTime();
    Watchdog::beat();
    if (isHiddenFirst)
        m_host->hide();
    delete m_page.data();
    if (m_isLost && m_camera)
        checkLostTime(begin);
    if (m_camera && m_countsObservers && m_camera->observerCount() != 0)
        find(QString("%1 observers are left").arg(m_camera->observerCount()));
}

// Sanitizers slow down what is not a call.
void Session::checkLostTime(std::chrono::nanoseconds begin)
{
    const auto time = Watchdog::guiTime() - begin;
    if (time > longestLostStep * Watchdog::slowdown)
        find(QString("with a lost camera it took %1 ms").arg(time / std::chrono::milliseconds(1)));
}

void Session::loseCamera()
{
    if (m_isHonest || m_isLost || !random.oneIn(2))
        return;
    m_isLost = true;
    m_run.report["cameras lost"] += 1;
    m_camera->lose(lostCallTime);
}

void Session::burst(bool isLarge)
{
    const std::string name = m_misbehaviour->anyObservedFeature();
    if (!m_hasThreads || m_crowd.joinable() || name.empty())
        return;
    const int count = isLarge ? 100000 : 500;
    m_crowd = std::thread([this, count, name] { m_camera->burst(name, count, 4); });
}

QString Session::takeWrites(const QStringList& ignored)
{
    account();
    QStringList writes = std::exchange(m_writes, {});
    for (const QString& feature : ignored)
        writes = writes.filter(QRegularExpression("^(?!" + feature + "=)"));
    return writes.join(", ");
}

// Takes over the journal's entries and counts, which start anew.
void Session::account()
{
    sim::Journal& journal = m_camera->journal();
    const auto mix = [this](const std::string& text) {
        for (const char c : text)
            m_digest = (m_digest ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    };
    for (const sim::JournalEntry& entry : journal.writes()) {
        const std::string write = entry.feature + '=' + entry.value.toText();
        m_writes.append(QString::fromStdString(write));
        mix(write);
    }
    mix(std::to_string(journal.count()));
    m_run.report["SDK calls"] += journal.count();
    journal.clear();
}

void Session::find(const QString& text)
{
    m_run.report.find(QString("seed %1, step %2 (%3), camera %4: %5\n"
                              "  replay with: scripts/soak --replay %1")
                          .arg(m_seed)
                          .arg(m_step)
                          .arg(m_action, m_model.c_str(), text));
}

// A dialog is on: somebody answers, refuses, waits, or closes the page under it.
void Session::answerDialog()
{
    Watchdog::beat();
    auto* const popup = QApplication::activePopupWidget();
    if (popup && random.oneIn(2)) {
        popup->close();
        return;
    }
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || random.oneIn(2))
        return;
    m_run.report["user actions"] += 1;
    if (m_page && random.oneIn(8)) {
        closePage();
        return;
    }
    if (auto* const files = qobject_cast<QFileDialog*>(dialog); files && !random.oneIn(4)) {
        if (auto* const name = files->findChild<QLineEdit*>())
            name->setText(random.pick(m_run.pictures));
        files->setDirectory(QFileInfo(m_run.pictures.first()).path());
        // Of a missing file Qt tells in a box, which waits for this timer's next turn.
        QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
        return;
    }
    const auto buttons = dialog->findChildren<QAbstractButton*>();
    if (buttons.isEmpty() || random.oneIn(3) || qobject_cast<QFileDialog*>(dialog))
        dialog->reject();
    else
        random.pick(buttons)->click();
}
