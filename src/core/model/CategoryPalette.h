#pragma once

#include "model/RgbaColor.h"

#include <QList>

// The colours categories get when nobody chose one: the seven colours of
// the Okabe-Ito palette (its black is left out: income stays neutral), made
// to stay apart for colour-blind readers, then seven more picked to lie at
// least 20 CIEDE2000 units from every other one and as far as could be from
// each other under simulated red-green colour blindness, with lightness and
// chroma kept within the range of the first seven. Past the fourteenth it
// starts again.
namespace CategoryPalette {

int size();
RgbaColor colorAt(int index);
// The first palette colour none of the used ones has; when every one is
// taken, the palette goes round from the count used.
RgbaColor nextColor(const QList<RgbaColor> &used);

} // namespace CategoryPalette
