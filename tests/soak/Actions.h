#pragma once

class Session;

/// Something that a person, the viewer, the camera or another client does.
struct Action
{
    const char* name;
    int weight;
    void (*perform)(Session&);
};

const Action& pickAction(Session& session);
