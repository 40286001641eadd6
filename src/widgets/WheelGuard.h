#pragma once

class QEvent;
class QObject;

/// True for a wheel event to a plain combo box, spin box or double spin box without keyboard focus.
/// An event filter then ignores the event and returns true, and the page scrolls instead. The field
/// needs Qt::StrongFocus: with the default policy Qt focuses it before the filter sees the wheel.
bool isUnfocusedFieldWheel(const QObject* target, const QEvent* event);
