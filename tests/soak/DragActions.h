#pragma once

class Session;

/// Drags on a region's picture, with disturbances; nothing may be written before the release.
void dragRegion(Session& session);

/// Drags a line that regions share, which stays where the mouse is whatever comes meanwhile.
void dragLine(Session& session);
