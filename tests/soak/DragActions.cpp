#include "DragActions.h"

#include "Actions.h"
#include "Invariants.h"
#include "UserInput.h"

#include <QLabel>
#include <QRubberBand>

namespace {

// The pictures are the labels that carry bands.
QPointer<QLabel> anyPicture(Session& session)
{
    QList<QLabel*> pictures;
    for (QLabel* const label : usable<QLabel>(session)) {
        if (label->findChild<QRubberBand*>())
            pictures.append(label);
    }
    return pictures.isEmpty() ? nullptr : session.random.pick(pictures);
}

QPoint anyPoint(Random& random, const QSize& size)
{
    constexpr int beyond = 30;
    return {random.between(-beyond, size.width() + beyond),
            random.between(-beyond, size.height() + beyond)};
}

// Mostly at an edge, a corner or the middle of a band, and a little beside it.
QPoint pressPoint(Random& random, const QLabel& picture, bool isInside)
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

// A tile may lie over another while its neighbour is off, and a refused write may leave an overlap.
bool mustNotOverlap(Session& session)
{
    const char* const arrangement = "MultipleRegionArrangement";
    return session.character().isStrict && session.camera().has(arrangement)
        && session.camera().text(arrangement) != "Tile";
}

} // namespace

void dragRegion(Session& session)
{
    Random& random = session.random;
    const QPointer<QLabel> picture = anyPicture(session);
    if (!picture)
        return;
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
    const QPoint from = pressPoint(random, *picture, isTyped);
    sendMouse(picture, QEvent::MouseMove, from, Qt::NoButton);
    if (!picture)
        return;
    sendMouse(picture, QEvent::MouseButtonPress, from);
    session.takeWrites(); // a press may select a region
    const int overlaps = Invariants::countOverlaps(session);
    bool isAlone = true;
    bool isDropped = false;
    QPoint to = from;
    for (int moves = random.below(8); moves > 0 && picture; --moves) {
        to = random.oneIn(3) ? anyPoint(random, picture->size())
                             : to + QPoint(random.between(-20, 20), random.between(-20, 20));
        sendMouse(picture, QEvent::MouseMove, to);
        if (random.oneIn(2))
            session.pass(random.pick({0, 0, 0, 20, 300, 1100}));
        if (!picture || !random.oneIn(4))
            continue;
        const Action& meanwhile = pickAction(random, Action::InDrag);
        meanwhile.perform(session);
        isAlone = isAlone && !(meanwhile.flags & Action::ChangesCamera);
        isDropped = isDropped || meanwhile.flags & Action::TakesMouse;
    }
    const auto findWrites = [&session](const char* text) {
        // A region outside switches the function off; a press beside all lets them be read on.
        const QString writes = session.takeWrites({"AutofunctionAOIEnable", "SubRegionSelector"});
        if (session.character().isHonest && session.page() && !writes.isEmpty())
            session.find(QString(text).arg(writes));
    };
    findWrites("a drag wrote %1 before its release");
    if (picture)
        release(picture, to);
    if (isDropped)
        findWrites("a drag that had lost the mouse wrote %1");
    if (isAlone && mustNotOverlap(session) && Invariants::countOverlaps(session) > overlaps)
        session.find("a drag made regions overlap");
}
