#include "DragActions.h"

#include "Actions.h"
#include "Invariants.h"
#include "UserInput.h"

#include <QLabel>
#include <QMenu>
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

void sendLastFrame(Session& session)
{
    emit session.host().sendFrame(session.host().lastFrame);
}

QList<QRubberBand*> linesOf(const QLabel& picture)
{
    QList<QRubberBand*> lines;
    for (QRubberBand* const band : picture.findChildren<QRubberBand*>()) {
        if (band->inherits("LineRubberBand") && band->isVisible())
            lines.append(band);
    }
    return lines;
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

enum class Effect {
    None,
    Camera,
    Mouse ///< is taken away, which ends the drag
};

struct Disturbance
{
    int weight;
    void (*perform)(Session&);
    Effect effect = Effect::None;
};

void hideAndShow(Session& session)
{
    session.host().hide();
    session.host().show();
}

void openMenu(Session& session)
{
    QMenu menu;
    menu.addAction("An entry");
    menu.popup({});
    session.pass(20);
}

const Disturbance disturbances[]{
    {1, [](Session& s) { s.closePage(); }},
    {1, hideAndShow},
    {2, [](Session& s) { s.resizeByChance(200, 900, 900); }},
    {4, [](Session& s) { s.misbehaviour().writeFromOutside(); }, Effect::Camera},
    {1, [](Session& s) { emit s.host().streaming(s.random.oneIn(2)); }},
    {2, sendLastFrame},
    {2, openMenu, Effect::Mouse},
    {21,
     [](Session& s) {
         s.pass(s.random.pick({0, 0, 0, 20, 300, 1100}));
     }},
};

// A tile may lie over another while its neighbour is off, and a refused write may leave an overlap.
bool mustNotOverlap(Session& session)
{
    const char* const arrangement = "MultipleRegionArrangement";
    return session.isStrict() && session.camera().has(arrangement)
        && session.camera().feature(arrangement).text() != "Tile";
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
    if (!picture || !picture->isVisible() || !picture->isEnabled())
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
        if (!picture || !random.oneIn(2))
            continue;
        const Disturbance& disturbance = random.pickWeighted(disturbances);
        disturbance.perform(session);
        isAlone = isAlone && disturbance.effect != Effect::Camera;
        isDropped = isDropped || disturbance.effect == Effect::Mouse;
    }
    const auto findWrites = [&session](const char* text) {
        // A region outside switches the function off; a press beside all lets them be read on.
        const QString writes = session.takeWrites({"AutofunctionAOIEnable", "SubRegionSelector"});
        if (session.isHonest() && session.page() && !writes.isEmpty())
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

void dragLine(Session& session)
{
    Random& random = session.random;
    const QPointer<QLabel> picture = anyPicture(session);
    if (!picture || linesOf(*picture).isEmpty())
        return;
    leaveField();
    sendLastFrame(session);
    session.pass(0);
    const auto lines = picture ? linesOf(*picture) : QList<QRubberBand*>();
    if (lines.isEmpty() || !picture->isEnabled())
        return;
    const QRect start = random.pick(lines)->geometry();
    const bool isVertical = start.width() < start.height();
    const auto along = [isVertical](const QPoint& p) { return isVertical ? p.x() : p.y(); };
    const auto extent = [&] {
        const QSize size = picture->pixmap(Qt::ReturnByValue).size();
        return isVertical ? size.width() : size.height();
    };
    // Whether a line of the kind is there now.
    const auto isLineAt = [&](double place, double tolerance) {
        const auto now = linesOf(*picture);
        return std::any_of(now.begin(), now.end(), [&](const QRubberBand* line) {
            const QRect geometry = line->geometry();
            return (geometry.width() < geometry.height()) == isVertical
                && std::abs(along(geometry.center()) - place) <= tolerance;
        });
    };
    const auto moveBy = [&](double scale, int distance) {
        const QPoint shift = isVertical ? QPoint(distance, 0) : QPoint(0, distance);
        sendMouse(picture, QEvent::MouseMove, (start.center() + shift) * scale);
    };
    press(picture, start.center());
    constexpr int distance = 12;
    moveBy(1.0, distance);
    const double reached = along(start.center()) + distance;
    const int formerExtent = extent();
    if (picture && isLineAt(reached, 2.0) && formerExtent > 0) {
        if (random.oneIn(2))
            session.resizeByChance(400, 900, 900);
        else
            sendLastFrame(session);
        session.pass(0);
        const double scale = picture ? double(extent()) / formerExtent : 0.0;
        if (picture)
            moveBy(scale, distance);
        if (picture && scale > 0.3 && !isLineAt(reached * scale, 3.0))
            session.find("a line was lost in its drag");
    }
    if (picture)
        release(picture, start.center());
}
