#pragma once

#include <QPalette>

/// Colours of a dark application in Qt's Fusion style.
QPalette darkPalette();
