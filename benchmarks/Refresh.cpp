#include "PageWithFields.h"
#include "PlainCamera.h"
#include "Row.h"
#include "Screen.h"
#include "features/PluginFeatureObserver.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QSpinBox>

#include <thread>

// Change notifications and the tick that follows them.

namespace {

constexpr int fields = 20;
constexpr int notifications = 10000;
constexpr QSize windowSize(1000, 900);

/// A page that shows twenty integers of a camera.
class RefreshedPage
{
public:
    RefreshedPage()
        : m_camera(cameraWith(200, 0))
        , m_names(PageWithFields::integers(fields))
    {
        for (const QString& name : qAsConst(m_names))
            m_features.append(m_camera.feature(name.toLatin1().constData()));
        m_page = new PageWithFields(m_camera.features(), m_names);
        m_window = Screen::show(m_page, windowSize);
        m_page->updateTimer();
    }

    PlainCamera& camera() { return m_camera; }

    void changeAll()
    {
        ++m_value;
        for (const ZebCPP::FeaturePtr& feature : m_features)
            feature->SetValue(std::int64_t{m_value % 1000});
        for (const QString& name : m_names)
            m_page->OnFeatureChanged(name, {});
    }

    void tick() { m_page->updateTimer(); }

    /// From a thread of the camera's.
    void notify()
    {
        QCoreApplication::removePostedEvents(m_page, QEvent::MetaCall);
        std::thread([this] {
            for (int i = 0; i < notifications; ++i)
                m_camera.notify(m_features.at(i % fields));
        }).join();
    }

    void deliver() { QCoreApplication::sendPostedEvents(m_page, QEvent::MetaCall); }

    QVector<ZebCPP::FeaturePtr> features() const { return m_features; }

private:
    PlainCamera m_camera;
    QStringList m_names;
    QVector<ZebCPP::FeaturePtr> m_features;
    PageWithFields* m_page = nullptr;
    std::unique_ptr<QWidget> m_window;
    int m_value = 0;
};

/// Receives the same notifications and does nothing.
class Listener
{
public:
    Listener()
    {
        QObject::connect(&m_observer, &PluginFeatureObserver::setChangedFeature, &m_receiver,
                         [](const QString&, const QString&) {});
    }

    void notify(const QVector<ZebCPP::FeaturePtr>& features)
    {
        QCoreApplication::removePostedEvents(&m_receiver, QEvent::MetaCall);
        std::thread([&] {
            for (int i = 0; i < notifications; ++i)
                m_observer.FeatureChanged(features.at(i % fields));
        }).join();
    }

    void deliver() { QCoreApplication::sendPostedEvents(&m_receiver, QEvent::MetaCall); }

private:
    PluginFeatureObserver m_observer;
    QObject m_receiver;
};

/// The same fields with nothing behind them.
class PlainFields
{
public:
    PlainFields()
        : m_window(Screen::show(new QWidget, windowSize))
    {
        for (int i = 0; i < fields; ++i)
            m_fields.append(new QSpinBox(m_window.get()));
    }

    void setAll()
    {
        ++m_value;
        for (QSpinBox* field : m_fields) {
            const QSignalBlocker blocker(field);
            field->setRange(0, 1000000);
            field->setValue(m_value % 1000);
            field->setEnabled(true);
        }
    }

private:
    std::unique_ptr<QWidget> m_window;
    QVector<QSpinBox*> m_fields;
    int m_value = 0;
};

} // namespace

void addRefreshRows()
{
    addComparison("refresh/20-values", "setting the same fields", 3.0, {500, 50}, []() -> Contest {
        const auto page = std::make_shared<RefreshedPage>();
        const auto plain = std::make_shared<PlainFields>();
        page->changeAll();
        page->camera().resetCalls();
        page->tick();
        const auto calls = static_cast<double>(page->camera().calls());
        return {[page] { page->tick(); },
                [plain] { plain->setAll(); },
                {{"SDK-calls", calls}},
                [page] { page->changeAll(); }};
    });
    addComparison("refresh/10000-notifications", "the same signals to an empty slot", 3.0, {20, 2},
                  []() -> Contest {
                      const auto page = std::make_shared<RefreshedPage>();
                      const auto listener = std::make_shared<Listener>();
                      page->notify();
                      const double seconds = secondsOf([&] { page->deliver(); });
                      return {[page] {
                                  page->deliver();
                                  page->tick();
                              },
                              [listener] { listener->deliver(); },
                              {{"ns-each", seconds * 1e9 / notifications}},
                              [page, listener] {
                                  page->notify();
                                  listener->notify(page->features());
                              }};
                  });
}
