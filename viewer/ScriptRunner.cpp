#include "ScriptRunner.h"

#include "CameraSession.h"
#include "MainWindow.h"
#include "UserInput.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>

namespace {

constexpr int pauseBetweenActions = 60;

/// Splits "name=value"; a text without '=' has an empty value.
QPair<QString, QString> split(const QString& assignment)
{
    const int separator = assignment.indexOf(QLatin1Char('='));
    if (separator < 0)
        return {assignment, {}};
    return {assignment.left(separator), assignment.mid(separator + 1)};
}

/// The buttons of message boxes have no names; they are told by their texts.
QAbstractButton* findDialogButton(const QString& label)
{
    const QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog)
        return nullptr;
    const auto buttons = dialog->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == label)
            return button;
    }
    return nullptr;
}

/// A visible widget is preferred: pages may hold hidden ones of the same name.
QWidget* findWidget(const QString& name)
{
    QWidget* found = findDialogButton(name);
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() != name)
            continue;
        if (widget->isVisible())
            return widget;
        found = widget;
    }
    return found;
}

} // namespace

ScriptRunner::ScriptRunner(MainWindow& window, const QVector<ScriptAction>& actions)
    : m_window(window)
{
    for (const ScriptAction& action : actions)
        m_actions.enqueue(action);
}

void ScriptRunner::start()
{
    QTimer::singleShot(pauseBetweenActions, this, &ScriptRunner::step);
}

void ScriptRunner::step()
{
    if (m_actions.isEmpty()) {
        emit finished();
        return;
    }
    const ScriptAction action = m_actions.dequeue();
    const int pause
        = action.kind == ScriptAction::Wait ? action.argument.toInt() : pauseBetweenActions;
    // Scheduled first: an action may open a dialog, which the next one then answers.
    QTimer::singleShot(pause, this, &ScriptRunner::step);
    const QString failure = perform(action);
    if (!failure.isEmpty())
        emit failed(failure);
}

QString ScriptRunner::perform(const ScriptAction& action)
{
    const auto [name, value] = split(action.argument);
    switch (action.kind) {
    case ScriptAction::Click: {
        QWidget* widget = findWidget(action.argument);
        return widget ? clickWidget(widget) : tr("there is no widget %1").arg(action.argument);
    }
    case ScriptAction::Set: {
        QWidget* widget = findWidget(name);
        return widget ? setWidgetValue(widget, value) : tr("there is no widget %1").arg(name);
    }
    case ScriptAction::Tab:
        return selectTab(&m_window, action.argument);
    case ScriptAction::Edit:
        return m_window.editFeature(name) ? QString() : tr("%1 is not in the table").arg(name);
    case ScriptAction::Write:
        return writeFeature(name, value);
    case ScriptAction::Start:
    case ScriptAction::Stop:
        if (!m_window.session())
            return tr("no camera is open");
        m_window.session()->setStreaming(action.kind == ScriptAction::Start);
        return {};
    case ScriptAction::Close:
        m_window.closeCamera();
        return {};
    case ScriptAction::Wait:
        return {};
    }
    return {};
}

QString ScriptRunner::writeFeature(const QString& feature, const QString& value)
{
    if (!m_window.session())
        return tr("no camera is open");
    const ZebErrorType code = m_window.session()->camera().writeAsOtherClient(feature, value);
    return code == ZebErrorSuccess
        ? QString()
        : tr("%1 is not written (code %2)").arg(feature).arg(static_cast<int>(code));
}
