#include "Actions.h"
#include "Invariants.h"
#include "UserInput.h"

#include <QRubberBand>

namespace {

QPoint anyPoint(Random& random, const QSize& size)
{
    constexpr int beyond = 30;
    return {random.between(-beyond, size.width() + beyond),
            random.between(-beyond, size.height() + beyond)};
}

// Mostly at an edge, a corner or the middle of a band, and a little beside it.
QPoint pressPoint(Random& random, const QWidget& picture, bool isInside)
{
    const QRect band = random.pick(picture.findChildren<QRubberBand*>())->geometry();
    if (isInside)
        return band.center();
    if (random.oneIn(6))
        return anyPoint(random, picture.size());
    const auto along = [&random](int from, int length) {
        return from + random.pick({0, length / 2, length - 1}) + random.between(-5, 5);
    };
    return {along(band.x(), band.width()), along(band.y(), band.height())};
}

} // namespace

void dragRegion(Session& session)
{
    Random& random = session.random;
    const auto* const anyBand = anyUsable<QRubberBand>(session);
    if (!anyBand)
        return;
    const QPointer<QWidget> picture = anyBand->parentWidget();
    // What was typed is written before the drag begins, or when its field is left.
    const bool isTyped = random.oneIn(4);
    if (isTyped)
        leaveTyped(session);
    else
        leaveField();
    session.pass(0);
    if (!picture || !picture->isVisible() || !picture->isEnabled()
        || !picture->findChild<QRubberBand*>())
        return;
    QPoint to = pressPoint(random, *picture, isTyped);
    sendMouse(picture, QEvent::MouseMove, to, Qt::NoButton);
    if (!picture)
        return;
    sendMouse(picture, QEvent::MouseButtonPress, to);
    session.takeWrites(); // a press may select a region
    const int overlaps = Invariants::countOverlaps(session);
    int meanwhile = 0;
    for (int moves = random.below(8); moves > 0 && picture; --moves) {
        to = random.oneIn(3) ? anyPoint(random, picture->size())
                             : to + QPoint(random.between(-20, 20), random.between(-20, 20));
        sendMouse(picture, QEvent::MouseMove, to);
        if (random.oneIn(2))
            session.pass(random.pick({0, 0, 0, 20, 300, 1100}));
        if (!picture || !random.oneIn(4))
            continue;
        const Action& action = pickAction(random, Action::InDrag);
        action.perform(session);
        meanwhile |= action.flags;
    }
    session.checkWrites("before its release a drag", Invariants::readersWrites);
    if (picture)
        release(picture, to);
    if (meanwhile & Action::TakesMouse)
        session.checkWrites("a drag that had lost the mouse", Invariants::readersWrites);
    if (!(meanwhile & Action::ChangesCamera) && Invariants::countOverlaps(session) > overlaps)
        session.find("a drag made regions overlap");
}
