#pragma once

#include "Host.h"
#include "Random.h"
#include "Report.h"
#include "SoakCamera.h"

#include <QPointer>
#include <QTimer>

#include <chrono>
#include <memory>
#include <string>

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
    };

    /// Without the name of a model the seed decides.
    Session(const Run& run, std::uint64_t seed, const std::string& model = {});
    void run();
    /// Of the calls that the camera got: equal for equal seeds, when no thread takes part.
    std::uint64_t digest() const { return m_digest; }
    bool hasThreads() const { return m_character.hasThreads; }

    // For the actions.
    Random random;
    SoakCamera& camera() { return *m_camera; }
    Host& host() { return *m_host; }
    QWidget* page() const { return m_page; } ///< null when there is none now

    void pass(int milliseconds);    ///< lets the event loop run
    void resize(const QSize& size); ///< the window and its page
    void openPage();
    void closePage(bool isHiddenFirst = false);
    /// What the module wrote since the last call.
    QStringList takeWrites();
    /// On an honest camera it was nothing but the features that @p allowed matches.
    void checkWrites(const char* writer, const char* allowed);
    void find(const QString& text) { m_run.report.find(text); }

private:
    void setPlace(const char* action);
    void closeCamera();
    void step(int flags);
    void checkRefusal();
    void checkTime(std::chrono::nanoseconds begin);
    void answerDialog();

    const Run m_run;
    const std::uint64_t m_seed;
    std::string m_model;
    std::unique_ptr<SoakCamera> m_camera;
    const SoakCamera::Character m_character;
    std::unique_ptr<Host> m_host;
    TabExtensionInterface::FeatureList m_features;
    QPointer<QWidget> m_page;
    QTimer m_dialogTimer;
    int m_step = 0;
    bool m_isTranslated = true;
    std::uint64_t m_digest = 0;
};
