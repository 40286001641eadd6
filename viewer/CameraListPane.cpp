#include "CameraListPane.h"

#include "SimulatedSource.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

enum CameraRole {
    IdRole = Qt::UserRole,
    NameRole,
    DescriptionRole,
};

} // namespace

CameraListPane::CameraListPane(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_description(new QLabel(this))
    , m_open(new QPushButton(tr("&Open"), this))
    , m_close(new QPushButton(tr("&Close"), this))
    , m_controls(new QHBoxLayout)
{
    m_list->setObjectName(QStringLiteral("cameraList"));
    m_list->setAccessibleName(tr("Cameras"));
    m_list->setMinimumHeight(80);
    m_open->setObjectName(QStringLiteral("btnOpenCamera"));
    m_close->setObjectName(QStringLiteral("btnCloseCamera"));
    m_description->setWordWrap(true);

    for (const CameraEntry& model : SimulatedSource::models())
        add(model);
    m_simulated = m_list->count();

    m_controls->addWidget(m_open);
    m_controls->addWidget(m_close);
    m_controls->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_description);
    layout->addLayout(m_controls);

    connect(m_list, &QListWidget::currentRowChanged, this, &CameraListPane::onCurrentChanged);
    connect(m_list, &QListWidget::itemActivated, this, &CameraListPane::openCurrent);
    connect(m_open, &QPushButton::clicked, this, &CameraListPane::openCurrent);
    connect(m_close, &QPushButton::clicked, this, &CameraListPane::closeRequested);
    m_list->setCurrentRow(0);
    setOpenCamera({});
}

void CameraListPane::add(const CameraEntry& camera)
{
    auto* item = new QListWidgetItem(camera.name, m_list);
    item->setData(IdRole, camera.id);
    item->setData(NameRole, camera.name);
    item->setData(DescriptionRole, camera.description);
    item->setToolTip(camera.description);
}

QPushButton* CameraListPane::addButton(const QString& text, const char* objectName)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(objectName));
    m_controls->addWidget(button);
    return button;
}

void CameraListPane::offerSearch(const QString& idWithoutHardware)
{
    m_search = addButton(tr("&Search"), "btnSearchCameras");
    m_search->setToolTip(tr("Looks for cameras on the network and the USB bus."));
    connect(m_search, &QPushButton::clicked, this, [this] {
        m_search->setEnabled(false);
        emit searchRequested();
    });
    add({idWithoutHardware, tr("GigE camera without hardware"),
         tr("A GigE Vision camera that this program plays itself")});
    ++m_simulated;
    connect(addButton(tr("&Try without hardware"), "btnTryWithoutHardware"), &QPushButton::clicked,
            this, [this, idWithoutHardware] { emit openRequested(idWithoutHardware); });
}

void CameraListPane::setFound(const QVector<CameraEntry>& cameras)
{
    m_search->setEnabled(true);
    const QString current = currentId();
    while (m_list->count() > m_simulated)
        delete m_list->takeItem(m_simulated);
    for (const CameraEntry& camera : cameras) {
        add(camera);
        if (camera.id == current)
            m_list->setCurrentRow(m_list->count() - 1);
    }
    setOpenCamera(m_openCamera, m_state);
}

void CameraListPane::setOpenCamera(const QString& id, State state)
{
    const bool isNew = id != m_openCamera;
    m_openCamera = id;
    m_state = state;
    if (!id.isEmpty()
        && m_list->model()
               ->match(m_list->model()->index(0, 0), IdRole, id, 1, Qt::MatchExactly)
               .isEmpty())
        add({id, id, tr("Opened by its address")});
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* item = m_list->item(row);
        const bool open = !id.isEmpty() && item->data(IdRole).toString() == id;
        const QString name = item->data(NameRole).toString();
        QFont font = m_list->font();
        font.setBold(open);
        item->setFont(font);
        const QString marked = state == Open ? tr("%1 (open)")
            : state == Gone                  ? tr("%1 (does not answer)")
                                             : tr("%1 (opening …)");
        item->setText(open ? marked.arg(name) : name);
        if (open && isNew)
            m_list->setCurrentItem(item);
    }
    onCurrentChanged();
}

void CameraListPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_list->scrollToItem(m_list->currentItem());
}

// A camera that is gone may be back, and is opened anew.
void CameraListPane::onCurrentChanged()
{
    const QListWidgetItem* item = m_list->currentItem();
    m_description->setText(item ? item->data(DescriptionRole).toString() : QString());
    m_open->setEnabled(item && (currentId() != m_openCamera || m_state == Gone));
    m_close->setEnabled(!m_openCamera.isEmpty());
}

void CameraListPane::openCurrent()
{
    if (!currentId().isEmpty() && (currentId() != m_openCamera || m_state == Gone))
        emit openRequested(currentId());
}

QString CameraListPane::currentId() const
{
    const QListWidgetItem* item = m_list->currentItem();
    return item ? item->data(IdRole).toString() : QString();
}
