#include "BaseTabPluginWidget.h"

#include "features/CameraLink.h"
#include "features/SdkValues.h"
#include "plugin/TENotSupported.h"
#include "plugin/Translators.h"

#include <QApplication>
#include <QComboBox>
#include <QDebug>
#include <QEvent>
#include <QMutex>
#include <QPalette>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>

#include <utility>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

constexpr int refreshIntervalMs = 1000;
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

FeatureManager::Wrappers wrapFeatures(const BaseTabPluginWidget::FeatureList& features,
                                      const std::shared_ptr<CameraLink>& link)
{
    auto wrappers = FeatureManager::Wrappers::create();
    if (!features)
        return wrappers;
    const QVector<ZebCPP::FeaturePtr> list = *features;
    wrappers->reserve(list.size());
    for (const ZebCPP::FeaturePtr& feature : list)
        wrappers->append(std::make_shared<ZebFeatureWrapper>(feature, link));
    return wrappers;
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
    m_link = outerPage ? outerPage->m_link : std::make_shared<CameraLink>();
    featureManager = std::make_unique<FeatureManager>(wrapFeatures(features, m_link));
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
    return manager->GetStringValue(QStringLiteral("DeviceVendorName"))
        .startsWith(QLatin1String("Brontax"), Qt::CaseSensitive);
}

void BaseTabPluginWidget::OnFeatureChanged(const QString& name, const QString&)
{
    // A notification from another thread may be under way when the page hides.
    if (sender() == observer.get() && !m_observing)
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
    refreshFeatures();
    if (lock.isAlive())
        changedFeatures->clear();
}

void BaseTabPluginWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    withList([this](bool isRefreshing) {
        const QPointer<BaseTabPluginWidget> page = this;
        if (!isRefreshing && !isCameraLost())
            refreshFeatures();
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

void BaseTabPluginWidget::startUpdates(bool markChanged)
{
    refreshTimer->start(refreshIntervalMs);
    if (!m_observing)
        registerObservers(markChanged);
    else if (markChanged)
        markRegistered();
}

void BaseTabPluginWidget::markRegistered()
{
    for (const Registration& registration : qAsConst(m_registrations))
        noteOrKeep(registration.name);
}

void BaseTabPluginWidget::stopUpdates()
{
    refreshTimer->stop();
    // Features that refused to let the observer go are asked once more.
    if (m_observing || !m_registrations.isEmpty())
        unregisterObservers(false);
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

/// Asks a lost camera itself, now and then: an untouched page makes no other call.
bool BaseTabPluginWidget::isCameraLost()
{
    if (m_link->isBroken() && m_link->isDue() && hasFeatures()) {
        const auto feature = std::find_if(cameraFeatures->cbegin(), cameraFeatures->cend(),
                                          [](const ZebCPP::FeaturePtr& each) { return !!each; });
        std::string name;
        if (feature != cameraFeatures->cend())
            ZebFeatureWrapper(*feature, m_link).GetName(name);
    }
    if (m_link->isBroken())
        m_wasLost = true;
    return m_link->isBroken();
}

/// A camera that is back may have lost the observers, and anything may have changed.
void BaseTabPluginWidget::observeAgain()
{
    m_wasLost = false;
    unregisterObservers(false);
    registerObservers(true);
}

bool BaseTabPluginWidget::hasFeatures() const
{
    if (cameraFeatures && !cameraFeatures->isEmpty())
        return true;
    qDebug() << "Could not get features. Error code: " << static_cast<int>(Sdk::notFound);
    return false;
}

QVector<BaseTabPluginWidget::Registration> BaseTabPluginWidget::findObserved()
{
    QVector<Registration> observed;
    // A camera that calls back may change the viewer's list under the walk.
    const QVector<ZebCPP::FeaturePtr> features = *cameraFeatures;
    for (const ZebCPP::FeaturePtr& feature : features) {
        std::string text;
        if (!feature || ZebFeatureWrapper(feature, m_link).GetName(text) != Sdk::success)
            continue;
        const QString name = QString::fromStdString(text);
        if (observedFeatures.contains(name))
            observed.append({feature, name});
    }
    return observed;
}

ZebErrorType BaseTabPluginWidget::registerObservers(bool markChanged)
{
    m_observing = true;
    if (!hasFeatures())
        return Sdk::notFound;
    const ZebCPP::IFeatureObserverPtr target = observer;
    ZebErrorType result = Sdk::success;
    // A registration that the camera reports as failed may have been made all the same.
    m_registrations = findObserved();
    const QVector<Registration> registrations = m_registrations;
    for (const Registration& registration : registrations) {
        result = ZebFeatureWrapper(registration.feature, m_link).RegisterObserver(target);
        if (result != Sdk::success)
            qDebug() << "Could not register feature observer. Error code: "
                     << static_cast<int>(result) << "\n";
        if (markChanged)
            noteOrKeep(registration.name);
    }
    return result;
}

ZebErrorType BaseTabPluginWidget::unregisterObservers(bool markChanged)
{
    m_observing = false;
    if (!hasFeatures())
        return Sdk::notFound;
    const ZebCPP::IFeatureObserverPtr target = observer;
    ZebErrorType result = Sdk::success;
    const QVector<Registration> registrations
        = m_registrations.isEmpty() ? findObserved() : std::exchange(m_registrations, {});
    for (const Registration& registration : registrations) {
        result = ZebFeatureWrapper(registration.feature, m_link).UnregisterObserver(target);
        if (result != Sdk::success) {
            qDebug() << "Could not unregister feature observer. Error code: "
                     << static_cast<int>(result) << "\n";
            m_registrations.append(registration);
        }
        if (markChanged)
            noteOrKeep(registration.name);
    }
    return result;
}

bool BaseTabPluginWidget::fillComboBox(const QString& featureName, QComboBox* comboBox,
                                       bool withItemData)
{
    const QString current = featureManager->GetStringValue(featureName);
    const QStringList entries = featureManager->GetEnumEntries(featureName);

    const QSignalBlocker blocker(comboBox);
    comboBox->clear();
    comboBox->addItems(entries);
    if (withItemData) {
        for (int i = 0; i < entries.size(); ++i)
            comboBox->setItemData(i, entries.at(i), Qt::ToolTipRole);
    }
    const int index = entries.indexOf(current);
    comboBox->setCurrentIndex(index);
    return index >= 0;
}

QTranslator* BaseTabPluginWidget::loadTranslator(const QString& baseName)
{
    return Translators::load(baseName);
}

bool BaseTabPluginWidget::installTranslator(const QString& baseName)
{
    return Translators::install(baseName);
}
