#pragma once

class Session;

/// Presses somewhere on a region's picture, moves, and releases; in between the window may resize,
/// hide or close, time may pass and the camera may change. Nothing may be written meanwhile.
void dragRegion(Session& session);
