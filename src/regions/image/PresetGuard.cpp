#include "regions/image/PresetGuard.h"

#include <QApplication>
#include <QPushButton>

PresetGuard::PresetGuard(std::initializer_list<QPushButton*> buttons)
    : m_focus(QApplication::focusWidget())
{
    for (QPushButton* button : buttons) {
        // The button's own flag: its parents may be disabled for reasons of their own.
        m_wasEnabled.append({button, !button->testAttribute(Qt::WA_ForceDisabled)});
        button->setEnabled(false);
    }
}

PresetGuard::~PresetGuard()
{
    for (const auto& [button, wasEnabled] : std::as_const(m_wasEnabled))
        button->setEnabled(wasEnabled);
    if (m_focus)
        m_focus->setFocus();
}
