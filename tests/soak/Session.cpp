#include "Session.h"

#include "Actions.h"
#include "Invariants.h"
#include "MisbehavingCamera.h"
#include "VirtualTime.h"
#include "Watchdog.h"
#ifdef WITH_GENICAM
#include "GenicamSoakCamera.h"
#endif

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

std::string pickModel(Random& random)
{
    auto models = sim::modelNames();
#ifdef WITH_GENICAM
    models.insert(models.end(), 6, "genicam"); // so that a minute meets some
#endif
    const std::string model = random.pick(models);
    // With hundreds of regions a session takes as long as dozens of others.
    return model == "multi-region-256" && !random.oneIn(8) ? random.pick(models) : model;
}

std::unique_ptr<SoakCamera> createCamera(const std::string& model, Random& random)
{
#ifdef WITH_GENICAM
    if (model == "genicam")
        return std::make_unique<GenicamSoakCamera>(random);
#endif
    return std::make_unique<MisbehavingCamera>(model, random);
}

} // namespace

Session::Session(const Run& run, std::uint64_t seed, const std::string& model)
    : random(seed)
    , m_run(run)
    , m_seed(seed)
    , m_model(model.empty() ? pickModel(random) : model)
    , m_camera(createCamera(m_model, random))
    , m_character(m_camera->character())
    , m_dialogTimer(this)
{
    Watchdog::setPlace(seed, 0, m_action);
    const auto features = m_camera->features();
    m_features = TabExtensionInterface::FeatureList::create(features.begin(), features.end());
    if (!m_character.isHonest && random.oneIn(4))
        m_features->insert(random.below(m_features->size()), nullptr);
    const int folder = random.pick({0, 0, 1, 2});
    m_isTranslated = folder == 0;
    QDir::setCurrent(m_run.translationFolders[folder]);
    qDeleteAll(qApp->findChildren<QTranslator*>()); // or else the first page's would serve all
    VirtualTime::start(m_character.hasThreads ? VirtualTime::Pace::Fast : VirtualTime::Pace::Exact);
    QApplication::setPalette(QPalette(Qt::lightGray));
    m_host = std::make_unique<Host>();
    m_host->lastFrame = QPixmap(320, 200);
    connect(&m_dialogTimer, &QTimer::timeout, this, &Session::answerDialog);
    m_dialogTimer.start(dialogInterval);
}

void Session::run()
{
    const std::int64_t memory = largestMemory();
    if (m_run.isVerbose)
        std::fprintf(stderr, "seed %llu, camera %s\n", static_cast<unsigned long long>(m_seed),
                     m_model.c_str());
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
    if (m_page && m_character.isHonest) {
        Invariants::checkAtRest(*this);
        m_run.report["sessions that came to rest"] += 1;
    }
    if (random.oneIn(5) && !m_character.isHonest)
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
    m_run.report["sessions without threads"] += m_character.hasThreads ? 0 : 1;
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
    if (!m_camera)
        return;
    account();
    m_camera->tellFigures(m_run.report);
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
    const bool isTimed = m_isLost && action.flags & Action::Quick;
    const auto begin = Watchdog::guiTime();
    action.perform(*this);
    if (isTimed)
        checkLostTime(begin);
    if (m_character.isHonest && m_page)
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
    if (m_character.isHonest && !writes.isEmpty())
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
    if (m_character.isHonest && m_camera->has("Height") && m_camera->has("Width")
        && m_camera->text("DeviceVendorName").startsWith("Brontax"))
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
    if (m_camera && m_character.countsObservers && m_camera->observerCount() != 0)
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
    if (m_character.isHonest || m_isLost || !random.oneIn(2))
        return;
    m_isLost = true;
    m_run.report["cameras lost"] += 1;
    m_camera->lose(lostCallTime);
}

QString Session::takeWrites(const QStringList& ignored)
{
    account();
    QStringList writes = std::exchange(m_writes, {});
    for (const QString& feature : ignored)
        writes = writes.filter(QRegularExpression("^(?!" + feature + "=)"));
    return writes.join(", ");
}

void Session::account()
{
    const SoakCamera::Account account = m_camera->takeAccount();
    const QString text = account.writes.join(' ') + QString::number(account.calls);
    for (const QChar c : text)
        m_digest = (m_digest ^ c.unicode()) * 0x100000001B3u;
    m_writes += account.writes;
    m_run.report["SDK calls"] += account.calls;
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
