#pragma once

#include <QRadioButton>

/// A round indicator, green when on and red when off, which switches independently of its siblings.
class RoundButton : public QRadioButton
{
    Q_OBJECT

public:
    RoundButton(int id, bool checked, QWidget* parent);

    /// The number that the page gave the button.
    int id() const { return m_id; }

private:
    const int m_id;
};
