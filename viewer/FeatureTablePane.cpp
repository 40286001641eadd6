#include "FeatureTablePane.h"

#include "CameraSession.h"
#include "UserInput.h"
#include "WorkNotice.h"
#include "featuretable/FeaturesTableWidget.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int refreshIntervalMs = 500;
constexpr int featuresInASecond = 1000; ///< that a real camera tells

} // namespace

FeatureTablePane::FeatureTablePane(QWidget* parent)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , m_layout(new QVBoxLayout(this))
    , m_refreshTimer(new QTimer(this))
{
    m_filter->setObjectName(QStringLiteral("featureFilter"));
    m_filter->setPlaceholderText(tr("Search names and descriptions"));
    m_filter->setAccessibleName(tr("Search features"));
    m_filter->setClearButtonEnabled(true);
    m_layout->addWidget(m_filter);
    m_layout->addStretch();
    m_refreshTimer->setSingleShot(true);
    m_refreshTimer->setInterval(refreshIntervalMs);

    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_table)
            m_table->setFilter(text);
    });
    connect(m_refreshTimer, &QTimer::timeout, this, &FeatureTablePane::refresh);
    setEnabled(false);
}

FeatureTablePane::~FeatureTablePane()
{
    closeTable();
}

void FeatureTablePane::setSession(CameraSession* session)
{
    closeTable();
    m_session = session;
    setSeen(m_isSeen);
    setEnabled(session != nullptr);
}

void FeatureTablePane::setSeen(bool isSeen)
{
    m_isSeen = isSeen;
    if (isSeen)
        openTable();
}

void FeatureTablePane::openTable()
{
    if (!m_session || m_table)
        return;
    const int count = m_session->features()->size();
    WorkNotice work(tr("Reading %1 features …").arg(count), this);
    if (count > featuresInASecond)
        work.showNow();
    if (!m_session || m_table)
        return; // the camera went meanwhile
    m_features = FeatureManager::wrap(*m_session->features());
    m_manager = std::make_unique<FeatureManager>(m_features);
    m_table = std::make_unique<FeaturesTableWidget>(m_manager->GetFeatureNames(), m_manager.get(),
                                                    this);
    m_layout->insertWidget(1, m_table.get(), 1);
    m_table->setFilter(m_filter->text());
    connect(m_table.get(), &FeaturesTableWidget::loggingMessage, this, &FeatureTablePane::logged);
    connect(m_table.get(), &FeaturesTableWidget::cellEditorActive, this,
            &FeatureTablePane::onCellEditorActive);

    m_observer = std::make_shared<PluginFeatureObserver>();
    connect(m_observer.get(), &PluginFeatureObserver::setChangedFeature, this,
            &FeatureTablePane::noteChanged);
    for (const ZebFeatureWrapperPtr& feature : *m_features)
        feature->RegisterObserver(m_observer);
}

void FeatureTablePane::closeTable()
{
    if (!m_table)
        return;
    m_observer->disconnect(this);
    for (const ZebFeatureWrapperPtr& feature : *m_features)
        feature->UnregisterObserver(m_observer);
    m_observer.reset();
    m_refreshTimer->stop();
    m_changed.clear();
    m_table.reset();
    m_manager.reset();
    m_features.reset();
}

void FeatureTablePane::noteChanged(const QString& feature)
{
    m_changed.insert(feature);
    if (!m_refreshTimer->isActive())
        m_refreshTimer->start();
}

// The flag is not asked: it is false for the first row while its editor opens.
void FeatureTablePane::onCellEditorActive()
{
    if (m_table->editedFeature().isEmpty() && !m_table->pendingFeatures().isEmpty())
        QMetaObject::invokeMethod(this, &FeatureTablePane::refresh, Qt::QueuedConnection);
}

void FeatureTablePane::refresh()
{
    if (!m_table)
        return;
    for (const QString& feature : m_table->pendingFeatures())
        m_changed.insert(feature);
    const CameraLink& link = *m_manager->link();
    if (link.isDue() && !m_changed.isEmpty())
        m_table->updateFeatures({*m_changed.begin()});
    if (!link.isLost())
        m_table->updateFeatures(std::exchange(m_changed, {}).values());
    if (!m_changed.isEmpty() || !m_table->pendingFeatures().isEmpty())
        m_refreshTimer->start();
}

bool FeatureTablePane::edit(const QString& feature)
{
    openTable();
    auto* const table = findChild<QTableWidget*>(QStringLiteral("tblFeatures"));
    for (int row = 0; table && row < table->rowCount(); ++row) {
        if (table->item(row, 0)->data(Qt::UserRole).toString() != feature)
            continue;
        table->scrollToItem(table->item(row, 1), QAbstractItemView::PositionAtCenter);
        doubleClickWidget(table->viewport(), table->visualItemRect(table->item(row, 1)).center());
        return true;
    }
    return false;
}
