#pragma once

#include "model/RgbaColor.h"

#include <QList>

// The colours categories get when nobody chose one: the nine hues of the
// Tableau 10 palette (its gray is left to income), then five of the paler
// and darker partners Tableau 20 pairs with them, fourteen in all, so that
// the initial categories all differ. The palette was made for hues of
// similar weight that stay apart for most colour-blind readers. Past the
// fourteenth it starts again.
namespace CategoryPalette {

int size();
RgbaColor colorAt(int index);
// The first palette colour none of the used ones has; when every one is
// taken, the palette goes round from the count used.
RgbaColor nextColor(const QList<RgbaColor> &used);

} // namespace CategoryPalette
