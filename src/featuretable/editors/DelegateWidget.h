#pragma once

#include "featuretable/record/FeatureInfo.h"

#include <QVector>
#include <QWidget>

#include <utility>

/// The editor in a value cell; one derived class for each kind. It knows the cell's record and
/// nothing of the camera: it asks to be committed through its signals, each of the first four once.
///
/// A value is new when the user acted on a control or pressed Return, and it differs from the
/// camera's.
///
/// Return, leaving the editor (by Tab from the last control too) and hiding it finish the editing,
/// Escape cancels it. An act that makes the value final (an entry, a toggle, a click) finishes it.
class DelegateWidget : public QWidget
{
    Q_OBJECT

public:
    DelegateWidget(const FeatureInfo& info, QWidget* parent);

    QString featureName() const { return m_featureName; }

    /// Only the first call counts: an open editor is the user's. @p cameraValue is what the camera
    /// is known to hold; another one than @p value when it refused that.
    void fill(const QVariant& value, const QVariant& cameraValue);

    /// What was entered since the last call; invalid when that is nothing new or not acceptable.
    QVariant takeNewValue();

    /// Commits what was entered, as far as it is acceptable, and asks to be closed.
    void finish();
    /// Ends the editing without a signal. False when it had ended before.
    bool end() { return !std::exchange(m_ended, true); }
    bool hasEnded() const { return m_ended; }

signals:
    void editingFinished();
    void newBoolValueToSet(bool value);
    void newStringValueToSet(const QString& value);
    void newIntValueToSet(qint64 value);
    void sliderValueChanged(double value);
    void editingCancelled();

protected:
    /// False when the value is of a type that the editor cannot show.
    virtual bool showValue(const QVariant& value) = 0;
    /// Invalid while what was entered is not acceptable.
    virtual QVariant enteredValue() = 0;
    /// Return was pressed; finishes what is acceptable.
    virtual void confirm();

    /// Puts a control into the row; the first gets the keyboard. Scripts find it under its name.
    void addControl(QWidget* control, const char* objectName, int stretch);
    /// Shows the unit behind controls that have no suffix of their own.
    void addUnit(const FeatureInfo& info);
    /// The user acted on a control: its value is meant, even if it looks as before.
    void touch() { m_touched = true; }
    void forgetKnownValue() { m_knownValue.clear(); }

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void onFocusLeft(Qt::FocusReason reason);
    void finishLater();

    const QString m_featureName;
    QVector<QWidget*> m_controls;
    QVariant m_knownValue; ///< invalid when cell and camera disagree
    bool m_filled = false;
    bool m_touched = false;
    bool m_ended = false;
};
