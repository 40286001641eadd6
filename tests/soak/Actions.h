#pragma once

class Random;
class Session;

/// Something that a person, the viewer, the camera or another client does.
struct Action
{
    enum Flag {
        Quick = 1, ///< also with a lost camera
        InDrag = 2,
        ChangesCamera = 4,
        TakesMouse = 8, ///< which ends a drag
        EditsField = 16
    };

    const char* name;
    int weight;
    void (*perform)(Session&);
    int flags = 0;
};

/// By chance, one that has @p flags.
const Action& pickAction(Random& random, int flags = 0);

/// Leaves a number typed into a field or a cell, not entered.
void leaveTyped(Session& session);

/// Drags a band or a line on a region's picture, with disturbances; nothing may be written before
/// the release.
void dragRegion(Session& session);
