#pragma once

#include <QPalette>

/// Those of the style, with hints that can be read.
QPalette lightPalette();
/// Colours of a dark application in Qt's Fusion style.
QPalette darkPalette();
