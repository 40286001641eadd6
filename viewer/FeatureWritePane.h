#pragma once

#include <QPointer>
#include <QWidget>

class CameraSession;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Changes a feature of the open camera as another client of the camera would.
class FeatureWritePane : public QWidget
{
    Q_OBJECT

public:
    explicit FeatureWritePane(QWidget* parent = nullptr);

    /// Null when no camera is open.
    void setSession(CameraSession* session);

private:
    void write();
    void showCurrentValue();

    QPointer<CameraSession> m_session;
    QComboBox* m_feature;
    QLineEdit* m_value;
    QPushButton* m_write;
    QLabel* m_result;
};
