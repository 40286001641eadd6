#pragma once

class Session;

/// Presses somewhere on a region's picture, moves, and releases; in between the window may resize,
/// hide or close, time may pass and the camera may change. Nothing may be written meanwhile.
void dragRegion(Session& session);

/// Drags a line that regions share; meanwhile the same frame comes again, or the window resizes.
/// The line stays where the mouse is.
void dragLine(Session& session);
