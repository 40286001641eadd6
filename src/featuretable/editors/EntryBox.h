#pragma once

#include <QComboBox>

/// A combo box that tells an entry chosen from its list from one passed by keys or wheel, for which
/// QComboBox emits activated() as well.
class EntryBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    bool isStepping() const { return m_stepping; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool m_stepping = false;
};
