#pragma once

class Random;
class Session;

/// Something that a person, the viewer, the camera or another client does.
struct Action
{
    const char* name;
    int weight;
    void (*perform)(Session&);
    bool isShort = false; ///< also with a lost camera
};

/// Leaves a number typed into a field or a cell, not entered.
void leaveTyped(Session& session);

const Action& pickAction(Random& random);
