#include "MainWindow.h"

#include "CameraFinder.h"
#include "CameraListPane.h"
#include "CameraSession.h"
#include "DockLayout.h"
#include "FeatureTablePane.h"
#include "FeatureWritePane.h"
#include "LivePane.h"
#include "LogPane.h"
#include "PageHost.h"
#include "PluginHost.h"
#include "SimulatedSource.h"
#include "ViewerPalette.h"
#include "WorkNotice.h"
#include "widgets/Theme.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>

#include <utility>

namespace {

/// What the screen has room for, with a frame around it, and no more than the page makes use of.
QSize firstSize(const QScreen& screen)
{
    constexpr QSize largest(1600, 1000);
    return largest.boundedTo(screen.availableSize() * 15 / 16);
}

} // namespace

MainWindow::MainWindow(const QString& modulePath, std::unique_ptr<CameraFinder> finder)
    : m_plugin(std::make_unique<PluginHost>(modulePath))
    , m_finder(std::move(finder))
    , m_docks(new DockLayout(*this))
    , m_centre(new QStackedWidget(this))
    , m_pages(new QTabWidget)
{
    setWindowTitle(tr("Camera viewer"));
    resize(firstSize(*screen()));
    createPanes();
    createMenus();
    outlineControls(this);
    connect(qApp, &QGuiApplication::paletteChanged, this, [this] { outlineControls(this); });
    if (m_finder)
        connectFinder();
    if (!m_plugin->failure().isEmpty())
        m_log->append(ZebViewerLogGeneral, m_plugin->failure());
}

MainWindow::~MainWindow()
{
    closeCamera();
}

void MainWindow::openCamera(const QString& id)
{
    closeCamera();
    m_work = std::make_unique<WorkNotice>(tr("Opening %1 …").arg(id), this);
    // The notice goes in answer, in the midst of its own signal.
    connect(m_work.get(), &QProgressDialog::canceled, this, &MainWindow::closeCamera,
            Qt::QueuedConnection);
    if (!CameraFinder::isResponsibleFor(id)) {
        startSession(id, std::make_shared<SimulatedSource>(id));
        return;
    }
    m_opening = id;
    m_cameras->setOpenCamera(id, CameraListPane::Opening);
    m_finder->open(id);
}

void MainWindow::onOpened(const QString& id, const std::shared_ptr<CameraSource>& camera)
{
    if (id != m_opening)
        return; // another one was asked for since
    m_opening.clear();
    m_work->setLabelText(tr("Building the page of %1 …").arg(id));
    m_work->repaint();
    startSession(id, camera);
    emit openingEnded();
}

void MainWindow::onFailed(const QString& id, const QString& reason)
{
    m_log->append(ZebViewerLogGeneral, tr("%1 cannot be opened: %2").arg(id, reason));
    if (id != m_opening)
        return;
    m_opening.clear();
    m_work.reset();
    m_cameras->setOpenCamera({});
    emit openingEnded();
}

void MainWindow::onGone(bool isGone)
{
    m_cameras->setOpenCamera(m_session->id(), isGone ? CameraListPane::Gone : CameraListPane::Open);
    m_log->append(ZebViewerLogGeneral,
                  (isGone ? tr("%1 does not answer any more.") : tr("%1 answers again."))
                      .arg(m_session->id()));
}

void MainWindow::searchCameras()
{
    if (m_finder)
        m_finder->search();
}

void MainWindow::setPresentedAsSupported(bool is)
{
    if (m_presented)
        m_presented->setChecked(is);
}

void MainWindow::connectFinder()
{
    m_cameras->offerSearch(m_finder->idWithoutHardware());
    connect(m_cameras, &CameraListPane::searchRequested, this, &MainWindow::searchCameras);
    connect(m_finder.get(), &CameraFinder::found, m_cameras, &CameraListPane::setFound);
    connect(m_finder.get(), &CameraFinder::opened, this, &MainWindow::onOpened);
    connect(m_finder.get(), &CameraFinder::failed, this, &MainWindow::onFailed);
    connect(m_presented, &QAction::toggled, this, [this](bool is) {
        m_finder->setPresentedAsSupported(is);
        m_log->append(ZebViewerLogGeneral,
                      is ? tr("Cameras that are opened from now on are presented as supported: "
                              "the vendor's name is not the camera's own.")
                         : tr("Cameras that are opened from now on tell their own vendor."));
    });
}

void MainWindow::startSession(const QString& id, const std::shared_ptr<CameraSource>& camera)
{
    m_session = std::make_unique<CameraSession>(id, camera);
    connect(camera.get(), &CameraSource::goneChanged, this, &MainWindow::onGone);
    connect(camera.get(), &CameraSource::logged, m_log,
            [this](const QString& text) { m_log->append(ZebViewerLogGeneral, text); });
    m_live->setSession(m_session.get());
    m_outside->setSession(m_session.get());
    m_features->setSession(m_session.get());
    m_cameras->setOpenCamera(id);
    m_log->append(ZebViewerLogGeneral, tr("%1 opened.").arg(id));

    auto* page = new PageHost(*m_plugin, *m_session, m_pages);
    connect(page, &PageHost::logged, m_log, &LogPane::append);
    if (page->refusal() != m_plugin->failure())
        m_log->append(ZebViewerLogGeneral, page->refusal());
    m_pages->addTab(page, page->title());
    m_centre->setCurrentWidget(m_pages);
    m_work.reset();
}

void MainWindow::closeCamera()
{
    m_work.reset();
    if (!std::exchange(m_opening, {}).isEmpty())
        m_cameras->setOpenCamera({});
    if (!m_session)
        return;
    // The page goes before the camera: it still unregisters its observers.
    while (m_pages->count() > 0)
        delete m_pages->widget(0);
    m_centre->setCurrentIndex(0);
    m_live->setSession(nullptr);
    m_outside->setSession(nullptr);
    m_features->setSession(nullptr);
    m_cameras->setOpenCamera({});
    m_log->append(ZebViewerLogGeneral, tr("%1 closed.").arg(m_session->id()));
    m_session.reset();
}

bool MainWindow::editFeature(const QString& feature)
{
    m_featuresDock->raise();
    return m_features->edit(feature);
}

QPixmap MainWindow::screenshot()
{
    QPixmap picture = grab();
    if (QWidget* dialog = QApplication::activeModalWidget()) {
        QPainter painter(&picture);
        painter.drawPixmap(mapFromGlobal(dialog->mapToGlobal({0, 0})), dialog->grab());
    }
    return picture;
}

void MainWindow::setDark(bool dark)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(dark ? darkPalette() : lightPalette());
}

void MainWindow::rememberLayout()
{
    m_remembersLayout = true;
    m_isLaidOut = m_docks->restore(QSettings());
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (!std::exchange(m_isLaidOut, true))
        m_docks->resizeRows();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_remembersLayout) {
        QSettings settings;
        m_docks->save(settings);
    }
    QMainWindow::closeEvent(event);
}

void MainWindow::createPanes()
{
    auto* welcome = new QLabel(tr("Open a camera to see its page."), m_centre);
    welcome->setAlignment(Qt::AlignCenter);
    m_pages->setDocumentMode(true);
    m_centre->addWidget(welcome);
    m_centre->addWidget(m_pages);
    setCentralWidget(m_centre);

    m_cameras = new CameraListPane;
    m_live = new LivePane;
    m_log = new LogPane;
    m_outside = new FeatureWritePane;
    m_features = new FeatureTablePane;
    m_docks->add(m_cameras, tr("Cameras"), 0);
    m_docks->add(m_live, tr("Live picture"), 1);
    m_featuresDock = m_docks->add(m_features, tr("Camera features"), 1);
    m_docks->add(m_log, tr("Log"), 2);
    m_docks->add(m_outside, tr("Another client"), 2);
    m_docks->reset();

    connect(m_cameras, &CameraListPane::openRequested, this, &MainWindow::openCamera);
    // Behind another one's tab a pane counts as visible all the same.
    connect(m_featuresDock, &QDockWidget::visibilityChanged, m_features,
            &FeatureTablePane::setSeen);
    connect(m_features, &FeatureTablePane::logged, m_log, &LogPane::append);
    connect(m_cameras, &CameraListPane::closeRequested, this, &MainWindow::closeCamera);
}

void MainWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    if (m_finder) {
        m_presented = file->addAction(tr("&Present cameras as supported"));
        m_presented->setCheckable(true);
    }
    file->addAction(tr("&Quit"), this, &QWidget::close,
                    QKeySequence(int(Qt::CTRL) + int(Qt::Key_Q)));

    QMenu* view = menuBar()->addMenu(tr("&View"));
    const auto docks = m_docks->docks();
    for (QDockWidget* dock : docks)
        view->addAction(dock->toggleViewAction());
    view->addSeparator();
    view->addAction(tr("&First layout"), m_docks, &DockLayout::reset);
    view->addAction(tr("&Next pane"), m_docks, &DockLayout::focusNext, Qt::Key_F6);
    view->addAction(tr("&Previous pane"), m_docks, &DockLayout::focusPrevious,
                    QKeySequence(int(Qt::SHIFT) + int(Qt::Key_F6)));
    view->addSeparator();
    QAction* dark = view->addAction(tr("&Dark colours"));
    dark->setCheckable(true);
    dark->setChecked(palette().color(QPalette::Window).lightness() < 128);
    connect(dark, &QAction::toggled, this, &MainWindow::setDark);
}
