#include "CameraListPane.h"

#include "CameraItemDelegate.h"
#include "SimulatedModels.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

/// So many are found at a glance.
constexpr int mostWithoutFilter = 10;

enum CameraRole {
    DescriptionRole = CameraItemDelegate::DescriptionRole,
    IdRole,
    NameRole,
};

} // namespace

CameraListPane::CameraListPane(QWidget* parent)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , m_list(new QListWidget(this))
    , m_controls(new QGridLayout)
    , m_open(addButton(tr("&Open"), "btnOpenCamera"))
    , m_close(addButton(tr("&Close"), "btnCloseCamera"))
{
    m_filter->setObjectName(QStringLiteral("cameraFilter"));
    m_filter->setPlaceholderText(tr("Search names and descriptions"));
    m_filter->setAccessibleName(tr("Search cameras"));
    m_filter->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("cameraList"));
    m_list->setAccessibleName(tr("Cameras"));
    m_list->setItemDelegate(new CameraItemDelegate(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumHeight(80);

    const auto models = SimulatedModels::all();
    for (const CameraEntry& model : models)
        add(model);
    m_simulated = m_list->count();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addLayout(m_controls);

    connect(m_filter, &QLineEdit::textChanged, this, &CameraListPane::applyFilter);
    connect(m_filter, &QLineEdit::returnPressed, m_list, qOverload<>(&QWidget::setFocus));
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
    item->setData(Qt::AccessibleDescriptionRole, camera.description);
    item->setToolTip(tr("%1\nOn the command line: --camera %2").arg(camera.description, camera.id));
}

// Two in a row: the pane may be narrow.
QPushButton* CameraListPane::addButton(const QString& text, const char* objectName)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(objectName));
    const int place = m_controls->count();
    m_controls->addWidget(button, place / 2, place % 2);
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
    applyFilter();
    onCurrentChanged();
}

void CameraListPane::applyFilter()
{
    m_filter->setVisible(m_list->count() > mostWithoutFilter);
    int firstShown = -1;
    for (int row = m_list->count() - 1; row >= 0; --row) {
        QListWidgetItem* item = m_list->item(row);
        const auto matches = [&](int role) {
            return item->data(role).toString().contains(m_filter->text(), Qt::CaseInsensitive);
        };
        item->setHidden(!matches(NameRole) && !matches(DescriptionRole) && !matches(IdRole));
        if (!item->isHidden())
            firstShown = row;
    }
    if (!m_list->currentItem() || m_list->currentItem()->isHidden())
        m_list->setCurrentRow(firstShown);
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
