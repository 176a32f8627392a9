#pragma once

#include "settings/Settings.h"

class QPalette;

// The look of every window: the desktop's own style and colours, or the
// program's light or dark colours on the Fusion style. A bare X server, with
// no desktop theme to ask, gives Qt's light colours only; the choice makes a
// dark look possible everywhere.
namespace Appearance {

// The program's own colours for Light and Dark, every role of every group
// set; for System, a palette that sets nothing and so leaves every colour
// to the style and the desktop.
QPalette palette(Settings::Appearance appearance);

// Puts the look in force for the whole application at once: every window
// open now and later. System goes back to the style and colours the program
// started with.
void apply(Settings::Appearance appearance);

// The look in force; System until apply() changed it.
Settings::Appearance current();

} // namespace Appearance
