#include "featuretable/editors/DelegateWidget.h"

#include <QApplication>
#include <QDebug>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWheelEvent>

namespace {

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

DelegateWidget::DelegateWidget(const FeatureInfo& info, QWidget* parent)
    : QWidget(parent)
    , m_featureName(QString::fromStdString(info.name))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    setAccessibleName(QString::fromStdString(info.displayName));
    setToolTip(QString::fromStdString(info.toolTip));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    // The table would take a click beside the controls for one on its cell.
    setAttribute(Qt::WA_NoMousePropagation);
}

void DelegateWidget::fill(const QVariant& value, const QVariant& cameraValue)
{
    if (m_filled)
        return;
    m_filled = true;
    if (!showValue(value))
        qDebug() << "Cannot set value for type [ " << value.typeName() << "]";
    m_knownValue = isSameValue(value, cameraValue) ? value : QVariant();
    m_touched = false;
}

QVariant DelegateWidget::takeNewValue()
{
    QVariant value = enteredValue();
    if (!m_touched || !value.isValid() || isSameValue(value, m_knownValue))
        return {};
    m_knownValue = value;
    m_touched = false;
    return value;
}

void DelegateWidget::confirm()
{
    if (!enteredValue().isValid())
        return;
    touch();
    finish();
}

void DelegateWidget::addControl(QWidget* control, const char* objectName, int stretch)
{
    control->setObjectName(QLatin1String(objectName));
    control->setAccessibleName(accessibleName());
    const auto* field = qobject_cast<QLineEdit*>(control);
    if (const auto* typed = field ? field : control->findChild<QLineEdit*>())
        connect(typed, &QLineEdit::textEdited, this, &DelegateWidget::touch);
    control->installEventFilter(this);
    static_cast<QHBoxLayout*>(layout())->addWidget(control, stretch);
    m_controls.append(control);
}

void DelegateWidget::addUnit(const FeatureInfo& info)
{
    if (info.unit.empty())
        return;
    auto* unit = new QLabel(QString::fromStdString(info.unit), this);
    unit->setTextFormat(Qt::PlainText);
    unit->setForegroundRole(QPalette::Text);
    unit->setContentsMargins(0, 0, 4, 0);
    layout()->addWidget(unit);
}

void DelegateWidget::finish()
{
    if (end())
        emit editingFinished();
}

bool DelegateWidget::event(QEvent* event)
{
    // Return and Escape belong to the editor, not to shortcuts of the window.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape || isReturn(*key)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool DelegateWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        // A spin box goes back to its last value, which nobody entered.
        m_touched = m_touched && enteredValue().isValid();
        onFocusLeft(static_cast<QFocusEvent*>(event)->reason());
    }
    // Scrolling the table must not change a value that the pointer happens to pass.
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    // A spin box would replace a text that it does not accept before Return gets here.
    if (event->type() == QEvent::KeyPress && isReturn(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        confirm();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void DelegateWidget::focusInEvent(QFocusEvent* event)
{
    // Not a focus proxy: the view would send it the double click in coordinates of the table.
    if (!m_controls.isEmpty())
        m_controls.first()->setFocus(event->reason());
}

// The table would move its current cell and leave the editor open.
bool DelegateWidget::focusNextPrevChild(bool next)
{
    const int target = m_controls.indexOf(focusWidget()) + (next ? 1 : -1);
    if (QWidget* control = m_controls.value(target); control && control->isVisible())
        control->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    else
        finish();
    return true;
}

void DelegateWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        finishLater();
}

void DelegateWidget::keyPressEvent(QKeyEvent* event)
{
    // Keys that the controls leave over would move the table's current cell.
    event->accept();
    if (isReturn(*event))
        confirm();
    else if (event->key() == Qt::Key_Escape)
        emit editingCancelled();
}

// The editor keeps the mouse to itself, but the wheel scrolls the table.
void DelegateWidget::wheelEvent(QWheelEvent* event)
{
    if (QWidget* viewport = parentWidget())
        QCoreApplication::sendEvent(viewport, event);
}

void DelegateWidget::onFocusLeft(Qt::FocusReason reason)
{
    // Not isAncestorOf(), which leaves out the windows of controls, as the list of a combo box.
    const QWidget* focused = QApplication::focusWidget();
    while (focused && focused != this)
        focused = focused->parentWidget();
    if (focused || reason == Qt::PopupFocusReason)
        return;
    if (reason == Qt::ActiveWindowFocusReason || !isVisible() || !isVisibleTo(window()))
        finishLater();
    else
        finish();
}

// Windows lose the focus and hide their children while they are destroyed, when it is too late to
// commit anything. What is only hidden, or left for another window, lives to see the next event.
void DelegateWidget::finishLater()
{
    QMetaObject::invokeMethod(this, &DelegateWidget::finish, Qt::QueuedConnection);
}
