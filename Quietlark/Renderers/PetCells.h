#pragma once

#include "Quietlark/Renderers/Sheet.h"
#include "Quietlark/Theme/Appearance.h"

namespace quietlark {

/// A pet that shows `revealed` of its looks. `variety` goes round through eyes, mouths, cheeks, accessories
/// and keepsakes.
wumble::WumbleDay samplePet(wumble::WumbleBase base, int revealed, int variety = 0);

Cell petCell(std::string caption, const wumble::WumbleDay& day, const WumblePose& pose,
             Appearance appearance);

/// A sheet on the paper of that appearance.
SheetLayout paper(Appearance appearance, int columns, double cell);

} // namespace quietlark
