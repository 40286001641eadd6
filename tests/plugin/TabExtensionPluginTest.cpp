#include "Host.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "host/TabExtensionInterface.h"

#include "simulator/Model.h"

#include <QComboBox>
#include <QLayout>
#include <QMetaMethod>
#include <QPluginLoader>
#include <QProcess>
#include <QtTest>

/// The built module, loaded as the viewer loads it.
class TabExtensionPluginTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCOMPARE(m_loader.metaData().value("IID").toString(), QString("TabExtensionInterface"));
        QCOMPARE(m_loader.metaData().value("className").toString(), QString("TabExtensionPlugin"));
        m_plugin = qobject_cast<TabExtensionInterface*>(m_loader.instance());
        QVERIFY2(m_plugin, qPrintable(m_loader.errorString()));
        QVERIFY(
            QByteArray(TabExtensionInterface_iid).endsWith(".Plugin.TabExtensionInterface/1.0"));
        QVERIFY(!m_plugin->isTabShareable(true));
        QVERIFY(!m_plugin->isTabExclusive(true));
    }

    void exportsTheEntryPointsOnly()
    {
#ifdef Q_OS_LINUX
        QProcess nm;
        nm.start("nm", {"-D", "--defined-only", "-j", MODULE_PATH});
        QVERIFY(nm.waitForFinished());
        QStringList symbols = QString::fromLatin1(nm.readAllStandardOutput())
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        symbols.sort();
        QCOMPARE(symbols, QStringList({"qt_plugin_instance", "qt_plugin_query_metadata"}));
#else
        QSKIP("reads ELF symbols");
#endif
    }

    void fillsThePage()
    {
        const auto camera = sim::createCamera("current");
        Host host;
        auto* const page = new QWidget;
        page->setParent(&host);
        const auto connections = Host::connections();

        QCOMPARE(m_plugin->createTab(featureList(*camera), page, &connections), 0);
        QVERIFY(page->layout());
        QCOMPARE(page->accessibleName(), QString("Image Format"));
        QVERIFY(camera->journal().writes().empty());

        // Streaming disables, a logged error and a frame request arrive, a frame comes back.
        auto* const widget = page->layout()->itemAt(0)->widget();
        QSignalSpy running(widget, SIGNAL(acquisitionRunning(bool)));
        for (const bool isStreaming : {true, false}) {
            emit host.streaming(isStreaming);
            for (const char* name : {"frmImageFormat", "imageReaderWidget"})
                QCOMPARE(page->findChild<QWidget*>(name)->isEnabled(), !isStreaming);
        }
        QCOMPARE(running.size(), 2);
        auto* const source = page->findChild<QComboBox*>("imageReaderWidget");
        QMetaObject::invokeMethod(source, "onComboBoxItemActivated", Q_ARG(int, 1));
        QCOMPARE(host.frameRequests, 1);
        QSignalSpy images(source, SIGNAL(imageChanged(std::shared_ptr<QPixmap>)));
        emit host.sendFrame(QPixmap(8, 4));
        QCOMPARE(images.size(), 1);
        QCOMPARE(images.first().first().value<std::shared_ptr<QPixmap>>()->size(), QSize(8, 4));

        // A sender of another class.
        QObject stranger;
        stranger.setObjectName(QString("stranger"));
        connect(&stranger, SIGNAL(objectNameChanged(QString)), widget,
                SLOT(OnChangeComboboxSelection(QString)));
        stranger.setObjectName(QString("cmbStranger"));
        QCOMPARE(host.log.size(), 1);
        QCOMPARE(host.log.first().first, int(ZebViewerLogFeatureAccess));
        QCOMPARE(host.log.first().second, QString("Error accessing widget '%s'"));
        delete page;
    }

    void connectsWhatIsNamed()
    {
        for (const QString& key :
             QStringList{"connectWidgetToSignal", "connectLoggingSlot", "all"}) {
            const auto camera = sim::createCamera("current");
            Host host;
            auto* const page = new QWidget(&host);
            auto connections = Host::connections();
            connections.remove(key);
            const auto* const table = key == "all" ? nullptr : &connections;
            QCOMPARE(m_plugin->createTab(featureList(*camera), page, table), 0);
            emit host.streaming(true);
            QCOMPARE(page->findChild<QWidget*>("frmImageFormat")->isEnabled(),
                     key != "connectLoggingSlot");
            delete page;
        }
    }

    void refusesAndLeavesNothing()
    {
        for (const char* model : {"other-vendor", "no-height", "current"}) {
            const auto camera = sim::createCamera(model);
            // A page within the page refuses.
            camera->failures().add("DeviceVendorName", sim::Operation::GetValue,
                                   sim::Failure::refuse(), sim::Occurrence::from(3));
            QWidget page;
            page.setAccessibleName("Viewer");
            const auto connections = Host::connections();
            QCOMPARE(m_plugin->createTab(featureList(*camera), &page, &connections), 4);
            QVERIFY(!page.layout());
            QVERIFY(page.children().isEmpty());
            QCOMPARE(page.accessibleName(), QString("Viewer"));
            QCOMPARE(int(camera->observerCount()), 0);
        }
    }

    void keepsTheOrderOfItsMembers()
    {
        const auto camera = sim::createCamera("current");
        QWidget page;
        m_plugin->createTab(featureList(*camera), &page, nullptr);
        const QMetaObject* const meta = page.layout()->itemAt(0)->widget()->metaObject();
        QStringList members;
        for (int i = meta->superClass()->methodOffset(); i < meta->methodCount(); ++i)
            members << meta->method(i).methodSignature();
        QCOMPARE(members.join(' '),
                 QString("resetFPS() updateTimer() OnFeatureChanged(QString,QString) "
                         "acquisitionRunning(bool) loggingMessage(ZebViewerLogCategory,QString) "
                         "requestFrameSignal() receiveFrameSignal(QPixmap) camIsStreaming(bool) "
                         "OnChangeSpinbox(int) OnChangeComboboxSelection(QString) "
                         "OnChangeCheckbox(int)"));
    }

private:
    MessageHandlerGuard m_guard;
    QPluginLoader m_loader{MODULE_PATH};
    TabExtensionInterface* m_plugin = nullptr;
};

QTEST_MAIN(TabExtensionPluginTest)
#include "TabExtensionPluginTest.moc"
