#include "Session.h"

#include "Actions.h"
#include "Invariants.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include "simulator/Model.h"

#include <QtWidgets>

namespace {

constexpr std::chrono::milliseconds longestLostStep{2000};
constexpr int dialogInterval = 40;

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

std::unique_ptr<SoakCamera> createCamera(const std::string& model, Random& random, Report& report)
{
#ifdef WITH_GENICAM
    if (model == "genicam")
        return createGenicamCamera(random, report);
#endif
    return createMisbehavingCamera(model, random, report);
}

} // namespace

Session::Session(const Run& run, std::uint64_t seed, const std::string& model)
    : random(seed)
    , m_run(run)
    , m_seed(seed)
    , m_model(model.empty() ? pickModel(random) : model)
    , m_camera(createCamera(m_model, random, run.report))
    , m_character(m_camera->character())
    , m_dialogTimer(this)
{
    setPlace("opening");
    const auto features = m_camera->features();
    m_features = TabExtensionInterface::FeatureList::create(features.begin(), features.end());
    if (!m_character.isHonest && random.oneIn(4))
        m_features->insert(random.below(m_features->size()), nullptr);
    const int folder = random.pick({0, 0, 1, 2});
    m_isTranslated = folder == 0;
    QDir::setCurrent(m_run.translationFolders[folder]);
    qDeleteAll(qApp->findChildren<QTranslator*>()); // or else the first page's would serve all
    VirtualTime::start(hasThreads() ? VirtualTime::Pace::Fast : VirtualTime::Pace::Exact);
    QApplication::setPalette(QPalette(Qt::lightGray));
    m_host = std::make_unique<Host>();
    m_host->lastFrame = QPixmap(320, 200);
    connect(&m_dialogTimer, &QTimer::timeout, this, &Session::answerDialog);
    m_dialogTimer.start(dialogInterval);
}

void Session::run()
{
    openPage();
    const int steps = random.between(10, 80);
    for (m_step = 1; m_step <= steps && m_page; ++m_step) {
        step(steps - m_step < 5 ? Action::EditsField : 0); // what was refused is soon forgotten
        if (!m_page && random.oneIn(2))
            openPage();
        if (m_camera->isLost() && random.oneIn(4))
            break;
    }
    setPlace("closing");
    if (m_page && m_character.isHonest)
        Invariants::checkAtRest(*this);
    else if (random.oneIn(5))
        closeCamera(); // before its page
    closePage(!random.oneIn(2));
    m_dialogTimer.stop();
    closeCamera();
    m_host.reset();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (QApplication::overrideCursor())
        find("a cursor is left");
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    if (!QApplication::topLevelWidgets().isEmpty())
        find("a window is left");
    m_run.report["sessions run"] += 1;
    m_run.report["sessions without threads"] += hasThreads() ? 0 : 1;
}

void Session::setPlace(const char* action)
{
    Watchdog::setPlace(m_seed, m_model, m_step, action);
}

void Session::closeCamera()
{
    if (!m_camera)
        return;
    takeWrites();
    m_run.report["cameras lost"] += m_camera->isLost() ? 1 : 0;
    m_camera.reset();
}

void Session::step(int flags)
{
    const Action& action = pickAction(random, flags);
    setPlace(action.name);
    m_run.report["user actions"] += 1;
    const bool isTimed = m_camera->isLost() && action.flags & Action::Quick;
    const auto begin = Watchdog::guiTime();
    action.perform(*this);
    if (isTimed)
        checkTime(begin);
    if (m_character.isHonest && m_page)
        Invariants::checkRegions(*this);
    if (!m_camera->isLost() && random.oneIn(3))
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

void Session::resize(const QSize& size)
{
    m_host->resize(size);
    if (m_page)
        m_page->setGeometry(m_host->rect());
}

void Session::openPage()
{
    m_page = new QWidget;
    m_page->setParent(m_host.get());
    const auto connections = Host::connections();
    takeWrites();
    Watchdog::beat();
    qint32 result = -1;
    try {
        result
            = m_run.module.createTab(m_features, m_page, random.oneIn(20) ? nullptr : &connections);
    } catch (...) {
        find("an exception came out of createTab");
    }
    m_run.report[result == 0 ? "pages opened" : "pages refused"] += 1;
    if (result != 0) {
        checkRefusal();
        delete m_page;
        return;
    }
    const char* const text = "Pixel Format: ";
    if (m_isTranslated == (QCoreApplication::translate("ImageFormatWidget", text) == text))
        find("the texts are not those of the translation files");
    // A region told by its edges that is invalid gives way to the whole picture.
    checkWrites("opening", "SubRegionSelector|DSPSubregion(Left|Top|Right|Bottom)");
    resize({700, 900});
    m_page->show();
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
    delete m_page;
    if (m_camera && m_camera->isLost())
        checkTime(begin);
    if (m_camera && m_character.countsObservers && m_camera->observerCount() != 0)
        find(QString("%1 observers are left").arg(m_camera->observerCount()));
}

// Sanitizers slow down what is not a call.
void Session::checkTime(std::chrono::nanoseconds begin)
{
    const auto time = Watchdog::guiTime() - begin;
    if (time > longestLostStep * Watchdog::slowdown)
        find(QString("with a lost camera it took %1 ms").arg(time / std::chrono::milliseconds(1)));
}

QStringList Session::takeWrites()
{
    std::uint64_t calls = 0;
    QStringList writes = m_camera->takeWrites(calls);
    m_digest = (m_digest ^ qHash(writes) ^ calls) * 0x100000001B3u;
    m_run.report["SDK calls"] += calls;
    return writes;
}

void Session::checkWrites(const char* writer, const char* allowed)
{
    const QRegularExpression others(QString("^(?!(%1)=)").arg(allowed));
    const QStringList writes = takeWrites().filter(others);
    if (m_character.isHonest && m_page && !writes.isEmpty())
        find(QString("%1 wrote %2").arg(writer, writes.join(", ")));
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
    if (random.oneIn(8)) {
        closePage();
        return;
    }
    if (auto* const files = qobject_cast<QFileDialog*>(dialog); files && !random.oneIn(4)) {
        files->setDirectory(QFileInfo(m_run.pictures.first()).path());
        files->selectFile(random.pick(m_run.pictures));
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
