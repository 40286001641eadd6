#pragma once

#include "Host.h"
#include "Misbehaviour.h"
#include "Random.h"
#include "Report.h"

#include "simulator/Camera.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <memory>
#include <thread>

/// One camera, opened through the module as a viewer does it, used, and closed, by the seed.
class Session : public QObject
{
public:
    /// What a run shares among its sessions.
    struct Run
    {
        TabExtensionInterface& module;
        const QStringList& pictures;           ///< paths
        const QStringList& translationFolders; ///< built, missing, broken
        Report& report;
        bool isVerbose = false;
    };

    /// Without the name of a model the seed decides.
    Session(const Run& run, std::uint64_t seed, const std::string& model = {});
    void run();
    /// Of the calls that the camera got: equal for equal seeds, when no thread takes part.
    std::uint64_t digest() const { return m_digest; }
    bool hasThreads() const { return m_hasThreads; }

    // For the actions.
    Random random;
    sim::Camera& camera() { return *m_camera; }
    Misbehaviour& misbehaviour() { return *m_misbehaviour; }
    Host& host() { return *m_host; }
    QWidget* page() const { return m_page; } ///< null when there is none now
    /// At most it refuses, or answers late.
    bool isHonest() const { return m_isHonest; }
    bool isStrict() const { return m_isStrict; } ///< and only what is illegal
    bool isLost() const { return m_isLost; }

    void pass(int milliseconds);        ///< lets the event loop run
    void resize(int width, int height); ///< the window and its page
    void resizeByChance(int least, int mostWidth, int mostHeight);
    void openPage();
    void closePage(bool isHiddenFirst = false);
    void loseCamera(); ///< perhaps
    /// Notifies from four threads, where the session may have any.
    void burst(bool isLarge);
    /// What the module wrote since the last call, but for @p ignored features.
    QString takeWrites(const QStringList& ignored = {});
    void find(const QString& text);

private:
    void prepareCamera();
    void closeCamera();
    void step();
    void checkRefusal();
    void checkRest(std::int64_t memoryBefore);
    void answerDialog();
    void checkLostTime(std::chrono::nanoseconds begin);
    void account();

    const Run m_run;
    const std::uint64_t m_seed;
    std::unique_ptr<sim::Camera> m_camera;
    std::unique_ptr<Misbehaviour> m_misbehaviour;
    std::unique_ptr<Host> m_host;
    TabExtensionInterface::FeatureList m_features;
    QPointer<QWidget> m_page;
    QTimer m_dialogTimer;
    std::thread m_crowd;
    std::string m_model;
    QStringList m_writes;
    bool m_isHonest = false;
    bool m_isStrict = false;
    bool m_isLost = false;
    bool m_hasThreads = false;
    bool m_countsObservers = true;
    int m_step = 0;
    const char* m_action = "opening";
    bool m_isTranslated = true;
    std::uint64_t m_digest = 0;
};
