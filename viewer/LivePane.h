#pragma once

#include <QPointer>
#include <QWidget>

class CameraSession;
class ElidedLabel;
class LivePicture;
class QPushButton;

/// The live picture with a line that describes it, and Start and Stop.
class LivePane : public QWidget
{
    Q_OBJECT

public:
    explicit LivePane(QWidget* parent = nullptr);

    /// Null when no camera is open.
    void setSession(CameraSession* session);

private:
    void updateCaption();
    void updateButtons();

    QPointer<CameraSession> m_session;
    LivePicture* m_picture;
    ElidedLabel* m_caption;
    QPushButton* m_start;
    QPushButton* m_stop;
};
