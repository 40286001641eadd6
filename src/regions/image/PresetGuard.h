#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

#include <initializer_list>
#include <utility>

class QPushButton;

/// Disables the preset buttons while one of them is written, and then restores what each of them
/// was, and the focus, which a disabled button loses.
class PresetGuard
{
public:
    explicit PresetGuard(std::initializer_list<QPushButton*> buttons);
    ~PresetGuard();
    Q_DISABLE_COPY_MOVE(PresetGuard)

private:
    QVector<std::pair<QPushButton*, bool>> m_wasEnabled;
    QPointer<QWidget> m_focus;
};
