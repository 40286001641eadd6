#pragma once

class Session;

/// Drags a band or a line on a region's picture, with disturbances; nothing may be written before
/// the release.
void dragRegion(Session& session);
