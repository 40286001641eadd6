#include "Actions.h"

#include "UserInput.h"
#include "WheelEvent.h"

#include <QtWidgets>

namespace {

void typeNumber(Random& random, QWidget* field)
{
    const int limit = random.pick({10, 200, 3000, 20000});
    QTest::keyClicks(field,
                     random.oneIn(8) ? random.pick({"-", "abc", "1e9", "99999999999", ""})
                                     : QString::number(random.below(limit)));
}

// Or takes a step from there.
void endEntry(Random& random, QWidget* field)
{
    QTest::keyClick(field,
                    random.pick({Qt::Key_Return, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape,
                                 Qt::Key_Up, Qt::Key_PageDown}));
}

QPointer<QWidget> typeIntoField(Session& session)
{
    auto* const field = anyUsable<QAbstractSpinBox>(session);
    if (!field)
        return {};
    field->setFocus(Qt::MouseFocusReason);
    field->selectAll();
    typeNumber(session.random, field);
    return field;
}

void type(Session& session)
{
    Random& random = session.random;
    const QPointer<QWidget> field = typeIntoField(session);
    if (random.oneIn(4))
        session.pass(random.pick({50, 1200}));
    if (field && !random.oneIn(8))
        endEntry(random, field);
}

void clickButton(Session& session)
{
    const QPointer<QAbstractButton> button = anyUsable<QAbstractButton>(session);
    for (int i = session.random.pick({1, 1, 2}); i > 0 && button && button->isEnabled(); --i) {
        click(button.data(), session.random.oneIn(2) ? button->rect().center() : QPoint(6, 6));
        session.pass(0);
    }
}

void chooseEntry(Session& session)
{
    Random& random = session.random;
    const QPointer<QComboBox> box = anyUsable<QComboBox>(session);
    if (!box)
        return;
    box->setFocus(Qt::MouseFocusReason);
    if (random.oneIn(4)) {
        box->showPopup();
        session.pass(60);
    }
    for (int i = random.between(1, 3); i > 0 && box; --i) {
        QTest::keyClick(box, random.pick({Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Home}));
        session.pass(0);
    }
    if (box)
        box->hidePopup();
}

void switchTab(Session& session)
{
    if (auto* const bar = anyUsable<QTabBar>(session); bar && bar->count() > 0)
        click(bar, bar->tabRect(session.random.below(bar->count())).center());
}

void scroll(Session& session)
{
    Random& random = session.random;
    if (auto* const bar = anyUsable<QScrollBar>(session); bar && random.oneIn(2))
        bar->setValue(random.between(bar->minimum(), bar->maximum()));
    else if (auto* const widget = anyUsable<QWidget>(session))
        sendWheel(widget, random.pick({-120, 120, 30}));
}

/// Null when none opens.
QPointer<QWidget> openCell(Session& session)
{
    const QPointer<QTableView> table = anyUsable<QTableView>(session);
    const auto* const model = table ? table->model() : nullptr;
    if (!model || model->rowCount() == 0)
        return {};
    const int row = session.random.below(model->rowCount());
    const QModelIndex cell = model->index(row, model->columnCount() - 1);
    table->scrollTo(cell);
    const QPoint position = table->visualRect(cell).center();
    click(table->viewport(), position);
    if (!table)
        return {};
    sendMouse(table->viewport(), QEvent::MouseButtonDblClick, position);
    QWidget* const editor = QApplication::focusWidget();
    return table && editor != table && table->isAncestorOf(editor) ? editor : nullptr;
}

void editCell(Session& session)
{
    Random& random = session.random;
    if (usable<QTableView>(session).isEmpty())
        switchTab(session);
    const QPointer<QWidget> editor = openCell(session);
    if (!editor)
        return;
    if (random.oneIn(6)) {
        session.closePage();
        return;
    }
    typeNumber(random, editor);
    session.pass(random.pick({0, 50, 1200}));
    if (editor && !random.oneIn(4))
        endEntry(random, editor);
}

// The list of the pictures behind the regions: the last entry opens the file dialog.
void pickPicture(Session& session)
{
    auto* const list = session.page()->findChild<QComboBox*>("imageReaderWidget");
    if (!list || !list->isVisible() || !list->isEnabled())
        return;
    list->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(list, session.random.oneIn(4) ? Qt::Key_Home : Qt::Key_End);
    session.pass(0);
}

void sendFrame(Session& session)
{
    Random& random = session.random;
    QPixmap frame(random.pick<QSize>({{0, 0}, {1, 1}, {640, 480}, {2592, 1944}, {20000, 3}}));
    frame.fill(Qt::gray);
    if (random.oneIn(4))
        frame = QBitmap(64, 64);
    frame.setDevicePixelRatio(random.pick({1.0, 2.0}));
    session.host().lastFrame = frame;
    if (random.oneIn(2))
        emit session.host().sendFrame(frame);
}

void hideAndShow(Session& session)
{
    session.host().hide();
    session.pass(session.random.pick({0, 40, 400}));
    session.host().show();
    QApplication::setActiveWindow(&session.host());
}

void stream(Session& session)
{
    const bool runs = session.random.oneIn(2);
    session.camera().setStreaming(runs);
    emit session.host().streaming(runs);
}

void writeFromOutside(Session& session)
{
    for (int i = session.random.pick({1, 1, 1, 20}); i > 0; --i)
        session.camera().writeFromOutside();
}

void openMenu(Session& session)
{
    QMenu menu;
    menu.addAction("An entry");
    menu.popup({});
    session.pass(20);
}

void reopen(Session& session)
{
    session.closePage(!session.random.oneIn(2));
    session.pass(session.random.pick({0, 30}));
    session.openPage();
}

const Action actions[]{
    {"typing", 20, type, Action::EditsField},
    {"dragging", 26, dragRegion},
    {"clicking", 14, clickButton, Action::EditsField},
    {"choosing an entry", 8, chooseEntry, Action::EditsField},
    {"editing a cell", 8, editCell},
    {"picking a picture", 3, pickPicture},
    {"switching tabs", 8, switchTab, Action::Quick},
    {"scrolling", 3, scroll},
    {"resizing", 3,
     [](Session& s) {
         s.resize({s.random.between(50, 1600), s.random.between(50, 1200)});
     },
     Action::InDrag},
    {"changing the theme", 1,
     [](Session& s) { QApplication::setPalette(s.random.oneIn(2) ? Qt::black : Qt::white); }},
    {"a menu", 1, openMenu, Action::InDrag | Action::TakesMouse},
    {"hiding and showing", 2, hideAndShow, Action::InDrag},
    {"reopening", 2, reopen, Action::InDrag},
    {"streaming", 4, stream, Action::InDrag},
    {"a frame", 3, sendFrame, Action::InDrag},
    {"another client", 8, writeFromOutside, Action::InDrag | Action::ChangesCamera},
    {"distorting the camera", 4,
     [](Session& s) {
         if (!s.camera().character().isHonest && !s.camera().isLost())
             s.camera().distort();
     }},
    {"a burst", 1,
     [](Session& s) {
         s.camera().burst(s.random.pick({500, 500, 100000}));
     }},
    {"losing the camera", 1,
     [](Session& s) {
         if (!s.camera().character().isHonest && s.random.oneIn(2))
             s.camera().lose(std::chrono::milliseconds(300));
     }},
};

} // namespace

void leaveTyped(Session& session)
{
    if (QWidget* const editor = openCell(session))
        typeNumber(session.random, editor);
    else
        typeIntoField(session);
}

const Action& pickAction(Random& random, int flags)
{
    QVector<const Action*> lots; // each as often as its weight says
    for (const Action& action : actions) {
        if ((action.flags & flags) == flags)
            lots.insert(lots.size(), action.weight, &action);
    }
    return *random.pick(lots);
}
