#include "DragActions.h"

#include "Invariants.h"
#include "UserInput.h"

#include <QLabel>
#include <QRubberBand>

namespace {

// The pictures are the labels that carry bands.
QLabel* anyPicture(Session& session)
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
QPoint pressPoint(Random& random, const QLabel& picture)
{
    const auto bands = picture.findChildren<QRubberBand*>();
    const QRect band = random.pick(bands)->geometry();
    if (random.oneIn(6))
        return anyPoint(random, picture.size());
    const auto along = [&random](int from, int length) {
        return from + random.pick({0, length / 2, length - 1}) + random.between(-5, 5);
    };
    return {along(band.x(), band.width()), along(band.y(), band.height())};
}

// Whether the camera was left alone.
bool disturb(Session& session)
{
    Random& random = session.random;
    switch (random.below(30)) {
    case 0:
        session.closePage(Report::MidDrag);
        break;
    case 1:
        session.host().hide();
        session.host().show();
        break;
    case 2:
    case 3:
        session.host().resize(random.between(200, 900), random.between(200, 900));
        break;
    case 4:
    case 5:
    case 6:
    case 7:
        session.misbehaviour().writeFromOutside();
        return false;
    case 8:
        emit session.host().streaming(random.oneIn(2));
        break;
    default:
        session.pass(random.pick({0, 0, 0, 20, 300, 1100}));
    }
    return true;
}

// A tile may lie over another while its neighbour is off; and a camera that refuses one of several
// writes keeps what comes of it.
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
    // What was typed and not entered yet is written when its field is left.
    if (QWidget* const field = QApplication::focusWidget())
        field->clearFocus();
    session.pass(0);
    if (!picture)
        return;
    const QPoint from = pressPoint(random, *picture);
    sendMouse(picture, QEvent::MouseMove, from, Qt::NoButton);
    if (!picture)
        return;
    sendMouse(picture, QEvent::MouseButtonPress, from);
    session.takeWrites(); // a press may select a region
    const int overlaps = Invariants::countOverlaps(session);
    bool isAlone = true;
    QPoint to = from;
    for (int moves = random.below(8); moves > 0 && picture; --moves) {
        to = random.oneIn(3) ? anyPoint(random, picture->size())
                             : to + QPoint(random.between(-20, 20), random.between(-20, 20));
        sendMouse(picture, QEvent::MouseMove, to);
        if (picture && random.oneIn(2))
            isAlone = disturb(session) && isAlone;
    }
    // A region that lies outside switches the automatic function off when it is noticed; and a
    // press beside the regions starts no drag, so that they are read on, one selected after the
    // other.
    const QStringList writes = session.takeWrites(
        {QStringLiteral("AutofunctionAOIEnable"), QStringLiteral("SubRegionSelector")});
    if (session.isHonest() && session.page() && !writes.isEmpty())
        session.find(QStringLiteral("a drag wrote %1 before its release")
                         .arg(writes.join(QLatin1String(", "))));
    if (picture)
        release(picture, to);
    if (isAlone && mustNotOverlap(session) && Invariants::countOverlaps(session) > overlaps)
        session.find(QStringLiteral("a drag made regions overlap"));
}
