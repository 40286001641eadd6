#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

/// The camera models to choose from, with Open and Close.
class CameraListPane : public QWidget
{
    Q_OBJECT

public:
    explicit CameraListPane(QWidget* parent = nullptr);

    /// Marks the open camera; an empty name when none is.
    void setOpenCamera(const QString& modelName);

signals:
    void openRequested(const QString& modelName);
    void closeRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void onCurrentChanged();
    void openCurrent();
    QString currentModel() const;

    QListWidget* m_list;
    QLabel* m_description;
    QPushButton* m_open;
    QPushButton* m_close;
    QString m_openCamera;
};
