#pragma once

namespace genicam {

/// Criticals and warnings of GLib so far: faults of the bridge, the library or a description. They
/// are printed, and end nothing.
int criticalCount();

} // namespace genicam
