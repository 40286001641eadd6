#pragma once

#include "CameraEntry.h"

#include <QWidget>

class QGridLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

/// The cameras to choose from, with a filter when there are many, and Open and Close.
class CameraListPane : public QWidget
{
    Q_OBJECT

public:
    explicit CameraListPane(QWidget* parent = nullptr);

    /// Offers a search for cameras, and one that needs no hardware.
    void offerSearch(const QString& idWithoutHardware);
    /// What a search found, in place of what the last one found.
    void setFound(const QVector<CameraEntry>& cameras);

    enum State {
        Opening,
        Open,
        Gone ///< it does not answer any more
    };

    /// Marks the camera that is open, or not quite; an empty ID when none is.
    void setOpenCamera(const QString& id, State state = Open);

signals:
    void openRequested(const QString& id);
    void closeRequested();
    void searchRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyFilter();
    void onCurrentChanged();
    void openCurrent();
    QString currentId() const;
    void add(const CameraEntry& camera);
    QPushButton* addButton(const QString& text, const char* objectName);

    QLineEdit* m_filter;
    QListWidget* m_list;
    QGridLayout* m_controls;
    QPushButton* m_open;
    QPushButton* m_close;
    QPushButton* m_search = nullptr;
    QString m_openCamera;
    State m_state = Open;
    int m_simulated = 0; ///< cameras at the head of the list
};
