#include "page/BaseTabPluginWidget.h"

#include "features/CameraLink.h"
#include "features/FeatureNames.h"
#include "features/FeatureWrapping.h"
#include "page/TENotSupported.h"
#include "page/Translators.h"
#include "widgets/SilentFields.h"

#include <QApplication>
#include <QEvent>
#include <QMutex>
#include <QPalette>
#include <QPointer>
#include <QTimer>

#include <utility>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

constexpr int darkLightness = 128;

void discardMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

/// Qt calls the handler for as long as the process lives, also when the viewer has unloaded the
/// module: the module stays. On Linux it is linked so.
void silenceQt()
{
#ifdef Q_OS_WIN
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&discardMessage), &module);
#endif
    qInstallMessageHandler(discardMessage);
}

} // namespace

// Holds the list of changed names. Whatever is noted meanwhile on this thread (a camera that
// notifies within a write or a registration) waits in a side list, so that it neither deadlocks nor
// is lost when the list is cleared. The page may end while its list is held.
class BaseTabPluginWidget::ListLock
{
public:
    explicit ListLock(BaseTabPluginWidget* page)
        : m_page(page)
    {
        m_page->mutex->lock();
        m_page->m_locked = true;
    }

    ~ListLock()
    {
        if (!m_page)
            return;
        m_page->m_locked = false;
        const QStringList names = std::exchange(m_page->m_namesDuringLock, {});
        for (const QString& name : names)
            m_page->noteChanged(name);
        m_page->mutex->unlock();
    }

    bool isAlive() const { return m_page; }

    ListLock(const ListLock&) = delete;
    ListLock& operator=(const ListLock&) = delete;

private:
    QPointer<BaseTabPluginWidget> m_page;
};

BaseTabPluginWidget::BaseTabPluginWidget(const FeatureList& features, QWidget* parent)
    : QWidget(parent)
{
    silenceQt();
    cameraFeatures = features;
    // A page within another page works on the same camera.
    const auto* const outerPage = qobject_cast<BaseTabPluginWidget*>(parent);
    if (outerPage && features && outerPage->cameraFeatures
        && *outerPage->cameraFeatures == *features) {
        featureManager = std::make_unique<FeatureManager>(outerPage->featureManager->features(),
                                                          outerPage->featureManager->link());
    } else {
        featureManager = std::make_unique<FeatureManager>(
            features ? wrapFeatures(*features) : FeatureManager::Wrappers::create());
    }
    m_link = featureManager->link();
    if (!BaseTabPluginWidget::isVendorSupported(featureManager.get())) {
        throw TENotSupported(QStringLiteral("BaseTabPluginWidget::BaseTabPluginWidget"),
                             tr("Vendor not supported for plugins, widget not created."));
    }

    observer = std::make_shared<PluginFeatureObserver>();
    connect(observer.get(), SIGNAL(setChangedFeature(const QString&, const QString&)), this,
            SLOT(OnFeatureChanged(const QString&, const QString&)));
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(QStringLiteral(
        "QPushButton:disabled, QLineEdit:disabled, QComboBox:disabled, QDoubleSpinBox:disabled,"
        "                                           "
        " QSpinBox:disabled, QwtSlider:disabled, QGroupBox:disabled, QLabel:disabled"
        " { color: gray }"));

    mutex = std::make_unique<QMutex>();
    refreshTimer = new QTimer(this);
    connect(refreshTimer, SIGNAL(timeout()), this, SLOT(updateTimer()));
    changedFeatures = std::make_unique<QStringList>();

    connect(qApp, &QGuiApplication::paletteChanged, this,
            &BaseTabPluginWidget::onApplicationPaletteChanged);
    m_built = true;
}

BaseTabPluginWidget::~BaseTabPluginWidget()
{
    // A visible child that is deleted is never hidden first.
    disconnect(observer.get(), nullptr, this, nullptr);
    disconnect(qApp, nullptr, this, nullptr);
    stopUpdates();
    if (m_locked)
        mutex->unlock();
}

template <typename Work> void BaseTabPluginWidget::withList(Work&& work)
{
    if (m_locked) {
        work(true);
    } else {
        const ListLock lock(this);
        work(false);
    }
}

bool BaseTabPluginWidget::isVendorSupported(FeatureManager* manager)
{
    return manager->GetStringValue(FeatureNames::deviceVendorName)
        .startsWith(QLatin1String("Brontax"), Qt::CaseSensitive);
}

void BaseTabPluginWidget::OnFeatureChanged(const QString& name, const QString&)
{
    // A notification from another thread may be under way when the page hides. While it observes,
    // sender() is not asked: it would wait for a lock that the notifying thread still holds.
    if (!m_observing && sender() == observer.get())
        return;
    noteOrKeep(name);
}

void BaseTabPluginWidget::noteOrKeep(const QString& name)
{
    if (m_locked) {
        if (!m_namesDuringLock.contains(name))
            m_namesDuringLock.append(name);
        return;
    }
    const QMutexLocker locker(mutex.get());
    noteChanged(name);
}

void BaseTabPluginWidget::noteChanged(const QString& name)
{
    if (!changedFeatures->contains(name))
        changedFeatures->append(name);
}

void BaseTabPluginWidget::updateTimer()
{
    // Without an answer there is nothing to show: the page keeps what it shows, and the names.
    if (m_locked || m_suspensions > 0 || isCameraLost())
        return;
    if (m_wasLost && refreshTimer->isActive())
        observeAgain();
    const ListLock lock(this);
    refreshWhileAnswered();
    if (lock.isAlive())
        changedFeatures->clear();
}

void BaseTabPluginWidget::refreshWhileAnswered()
{
    const std::shared_ptr<CameraLink> link = m_link;
    const QPointer<BaseTabPluginWidget> page = this;
    const CameraLink::ManyReads manyReads(*link);
    refreshFeatures();
    if (page && link->isLost())
        m_wasLost = true;
}

void BaseTabPluginWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    withList([this](bool isRefreshing) {
        const QPointer<BaseTabPluginWidget> page = this;
        if (!isRefreshing && !isCameraLost())
            refreshWhileAnswered();
        if (page && m_suspensions == 0)
            startUpdates(true);
    });
}

void BaseTabPluginWidget::hideEvent(QHideEvent* event)
{
    m_suspensions = 0;
    stopUpdates();
    withList([this](bool) {
        changedFeatures->clear();
        m_namesDuringLock.clear();
    });
    QWidget::hideEvent(event);
}

void BaseTabPluginWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && m_built)
        onPaletteChanged(event);
    QWidget::changeEvent(event);
}

void BaseTabPluginWidget::onApplicationPaletteChanged()
{
    QEvent event(QEvent::PaletteChange);
    onPaletteChanged(&event);
}

bool BaseTabPluginWidget::isDarkMode()
{
    return QApplication::palette().color(QPalette::Window).lightness() < darkLightness;
}

void BaseTabPluginWidget::suspendUpdates()
{
    if (m_suspensions++ == 0)
        stopUpdates();
}

void BaseTabPluginWidget::resumeUpdates(bool markChanged)
{
    if (m_suspensions == 0 || --m_suspensions > 0 || !isVisible())
        return;
    withList([this, markChanged](bool) { startUpdates(markChanged); });
}

bool BaseTabPluginWidget::fillComboBox(const QString& featureName, QComboBox* comboBox,
                                       bool withItemData)
{
    const QString current = featureManager->GetStringValue(featureName);
    showEntries(comboBox, featureManager->GetEnumEntries(featureName), withItemData);
    return showEntry(comboBox, current);
}

QTranslator* BaseTabPluginWidget::loadTranslator(const QString& baseName)
{
    return Translators::load(baseName);
}

bool BaseTabPluginWidget::installTranslator(const QString& baseName)
{
    return Translators::install(baseName);
}
