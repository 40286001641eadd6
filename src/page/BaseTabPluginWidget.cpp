#include "page/BaseTabPluginWidget.h"

#include "features/CameraLink.h"
#include "features/FeatureNames.h"
#include "page/ChangedNames.h"
#include "page/FeatureObservation.h"
#include "page/TENotSupported.h"
#include "widgets/SilentFields.h"
#include "widgets/Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QDebug>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHash>
#include <QLocale>
#include <QPalette>
#include <QTimer>
#include <QTranslator>

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

/// To a field without the focus. Derived classes decide for themselves what the wheel does.
bool isUnfocusedFieldWheel(const QObject* target, const QEvent& event)
{
    const auto* widget = qobject_cast<const QWidget*>(target);
    if (event.type() != QEvent::Wheel || !widget || widget->hasFocus())
        return false;
    const QMetaObject* const type = widget->metaObject();
    return type == &QComboBox::staticMetaObject || type == &QSpinBox::staticMetaObject
        || type == &QDoubleSpinBox::staticMetaObject;
}

} // namespace

BaseTabPluginWidget::BaseTabPluginWidget(const FeatureList& features, QWidget* parent)
    : QWidget(parent)
    , m_outerPage(qobject_cast<BaseTabPluginWidget*>(parent))
    , m_changes(std::make_shared<ChangedNames>())
{
    silenceQt();
    cameraFeatures = features;
    if (m_outerPage && features && m_outerPage->cameraFeatures
        && *m_outerPage->cameraFeatures == *features) {
        const FeatureManager& shared = *m_outerPage->featureManager;
        featureManager = std::make_unique<FeatureManager>(shared.features(), shared.link());
    } else {
        featureManager = std::make_unique<FeatureManager>(
            features ? FeatureManager::wrap(*features) : FeatureManager::Wrappers::create());
    }
    m_observation = std::make_unique<FeatureObservation>(*featureManager);
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

    mutex = &m_changes->mutex();
    refreshTimer = new QTimer(this);
    connect(refreshTimer, SIGNAL(timeout()), this, SLOT(updateTimer()));
    changedFeatures = &m_changes->list();

    connect(qApp, &QGuiApplication::paletteChanged, this, [this] {
        restyle(this);
        QEvent event(QEvent::PaletteChange);
        onPaletteChanged(&event);
    });
}

BaseTabPluginWidget::~BaseTabPluginWidget()
{
    // A visible child that is deleted is never hidden first.
    disconnect(observer.get(), nullptr, this, nullptr);
    disconnect(qApp, nullptr, this, nullptr);
    stopUpdates();
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
    if (!m_observation->isOver() || sender() != observer.get())
        m_changes->note(name);
}

void BaseTabPluginWidget::readAgain(const QStringList& names)
{
    for (const QString& name : names)
        m_changes->note(name);
}

void BaseTabPluginWidget::updateTimer()
{
    // Without an answer there is nothing to show: the page keeps what it shows, and the names.
    if (m_changes->isHeld() || m_suspensions > 0 || readIsLost())
        return;
    if (m_wasLost && refreshTimer->isActive()) {
        // A camera that is back may have lost the observers, and anything may have changed.
        m_wasLost = false;
        unregisterObservers(false);
        registerObservers(true);
    }
    ChangedNames::Hold hold(m_changes);
    visit([this] { refreshFeatures(); });
    hold.handled();
}

/// Asks a lost camera now and then, each time for another feature: one alone may not answer.
bool BaseTabPluginWidget::readIsLost()
{
    CameraLink& link = *featureManager->link();
    const QStringList names = observedFeatures + QStringList{FeatureNames::deviceVendorName};
    const int first = link.questions();
    for (int i = 0; link.isDue() && i < names.size(); ++i) {
        FeatureReader feature = featureManager->Read(names.at((first + i) % names.size()));
        const ZebFeatureDataType type = feature.dataType();
        if (type == Sdk::enumerationType || type == Sdk::stringType)
            feature.textValue();
        else
            feature.value();
    }
    if (!link.isLost())
        return false;
    m_wasLost = true;
    if (link.takeLoss())
        reportLoss(tr("The camera does not answer. The page shows its last known settings."));
    return true;
}

void BaseTabPluginWidget::reportLoss(const QString& message)
{
    if (m_outerPage)
        m_outerPage->reportLoss(message);
}

void BaseTabPluginWidget::visit(const std::function<void()>& work)
{
    const QPointer<BaseTabPluginWidget> page = this;
    const std::shared_ptr<CameraLink> link = featureManager->link();
    const auto manyReads = link->manyReads();
    const auto memory = link->memory();
    work();
    if (page && link->isLost())
        m_wasLost = true;
}

void BaseTabPluginWidget::guardAgainstWheel(QWidget* field)
{
    // With the default policy the wheel itself would give the field its focus.
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(this);
}

bool BaseTabPluginWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (!isUnfocusedFieldWheel(watched, *event))
        return QWidget::eventFilter(watched, event);
    event->ignore(); // so that it goes on to the scroll area
    return true;
}

void BaseTabPluginWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    const QPointer<BaseTabPluginWidget> page = this;
    const ChangedNames::Hold hold(m_changes);
    if (hold.isOutermost() && !readIsLost())
        visit([this] { refreshFeatures(); });
    if (page && m_suspensions == 0)
        startUpdates(true);
}

void BaseTabPluginWidget::hideEvent(QHideEvent* event)
{
    m_suspensions = 0;
    stopUpdates();
    m_changes->clear();
    QWidget::hideEvent(event);
}

void BaseTabPluginWidget::startUpdates(bool markChanged)
{
    refreshTimer->start(refreshIntervalMs);
    if (m_observation->isRunning()) {
        if (markChanged)
            readAgain(m_observation->names());
    } else if (featureManager->link()->isLost()) {
        m_wasLost = true;
    } else {
        registerObservers(markChanged);
    }
}

void BaseTabPluginWidget::stopUpdates()
{
    refreshTimer->stop();
    unregisterObservers(false);
}

ZebErrorType BaseTabPluginWidget::registerObservers(bool markChanged)
{
    if (!hasFeatures())
        return Sdk::notFound;
    const ZebErrorType result = m_observation->start(observedFeatures, observer);
    if (markChanged)
        readAgain(m_observation->names());
    return result;
}

ZebErrorType BaseTabPluginWidget::unregisterObservers(bool markChanged)
{
    const QStringList names = m_observation->names();
    const ZebErrorType result = m_observation->stop();
    if (markChanged)
        readAgain(names);
    return hasFeatures() ? result : Sdk::notFound;
}

bool BaseTabPluginWidget::hasFeatures() const
{
    if (cameraFeatures && !cameraFeatures->isEmpty())
        return true;
    qDebug() << "Could not get features. Error code: " << static_cast<int>(Sdk::notFound);
    return false;
}

void BaseTabPluginWidget::changeEvent(QEvent* event)
{
    // The style sheet of the constructor changes the palette before there is a derived page.
    if (event->type() == QEvent::PaletteChange && changedFeatures)
        onPaletteChanged(event);
    QWidget::changeEvent(event);
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
    const ChangedNames::Hold hold(m_changes);
    startUpdates(markChanged);
}

bool BaseTabPluginWidget::fillComboBox(const QString& featureName, QComboBox* comboBox,
                                       bool withItemData)
{
    FeatureReader reader = featureManager->Read(featureName);
    const QString current = reader.textValue().value_or(QString());
    showEntries(comboBox, reader.entries(), withItemData);
    return showEntry(comboBox, current);
}

QTranslator* BaseTabPluginWidget::loadTranslator(const QString& baseName)
{
    auto translator = std::make_unique<QTranslator>();
    const QString locale = QLocale::system().name();
    const QString prefix = QLatin1String("qm/") + baseName + QLatin1Char('_');
    if (!translator->load(prefix + locale))
        static_cast<void>(translator->load(prefix + locale.left(2)));
    return translator.release();
}

bool BaseTabPluginWidget::installTranslator(const QString& baseName)
{
    // Held weakly: a translator ends with the application that it is a child of.
    static QHash<QString, QPointer<QTranslator>> installed;
    if (installed.value(baseName))
        return false;
    std::unique_ptr<QTranslator> translator(loadTranslator(baseName));
    if (translator->isEmpty())
        return false;
    translator->setParent(qApp);
    QCoreApplication::installTranslator(translator.get());
    installed.insert(baseName, translator.release());
    return true;
}
