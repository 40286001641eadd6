#include "CameraListPane.h"

#include "SimulatedSource.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

enum CameraRole {
    NameRole = Qt::UserRole,
    DescriptionRole,
};

} // namespace

CameraListPane::CameraListPane(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_description(new QLabel(this))
    , m_open(new QPushButton(tr("&Open"), this))
    , m_close(new QPushButton(tr("&Close"), this))
{
    m_list->setObjectName(QStringLiteral("cameraList"));
    m_list->setAccessibleName(tr("Cameras"));
    m_list->setMinimumHeight(80);
    m_open->setObjectName(QStringLiteral("btnOpenCamera"));
    m_close->setObjectName(QStringLiteral("btnCloseCamera"));
    m_description->setWordWrap(true);

    for (const CameraEntry& model : SimulatedSource::models()) {
        auto* item = new QListWidgetItem(model.name, m_list);
        item->setData(NameRole, model.name);
        item->setData(DescriptionRole, model.description);
        item->setToolTip(model.description);
    }

    auto* controls = new QHBoxLayout;
    controls->addWidget(m_description, 1);
    controls->addWidget(m_open);
    controls->addWidget(m_close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(controls);

    connect(m_list, &QListWidget::currentRowChanged, this, &CameraListPane::onCurrentChanged);
    connect(m_list, &QListWidget::itemActivated, this, &CameraListPane::openCurrent);
    connect(m_open, &QPushButton::clicked, this, &CameraListPane::openCurrent);
    connect(m_close, &QPushButton::clicked, this, &CameraListPane::closeRequested);
    m_list->setCurrentRow(0);
    setOpenCamera({});
}

void CameraListPane::setOpenCamera(const QString& modelName)
{
    m_openCamera = modelName;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* item = m_list->item(row);
        const bool open = !modelName.isEmpty() && item->data(NameRole).toString() == modelName;
        QFont font = m_list->font();
        font.setBold(open);
        item->setFont(font);
        item->setText(open ? tr("%1 (open)").arg(modelName) : item->data(NameRole).toString());
        if (open)
            m_list->setCurrentItem(item);
    }
    onCurrentChanged();
}

void CameraListPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_list->scrollToItem(m_list->currentItem());
}

void CameraListPane::onCurrentChanged()
{
    const QListWidgetItem* item = m_list->currentItem();
    m_description->setText(item ? item->data(DescriptionRole).toString() : QString());
    m_open->setEnabled(item && currentModel() != m_openCamera);
    m_close->setEnabled(!m_openCamera.isEmpty());
}

void CameraListPane::openCurrent()
{
    if (!currentModel().isEmpty() && currentModel() != m_openCamera)
        emit openRequested(currentModel());
}

QString CameraListPane::currentModel() const
{
    const QListWidgetItem* item = m_list->currentItem();
    return item ? item->data(NameRole).toString() : QString();
}
