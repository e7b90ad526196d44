#pragma once
// The status report and the listing as the user reads them: every comment in
// Arial and the comment colour, a ";>err" marker and all behind it in its
// comment red, and the report's first "Warnungen/Fehler:" red as well.

#include <cstdint>

#include "workbench/editor_flags.h"
#include "workbench/text_control.h"

namespace korvex {

// Red, as the control's colour value.
inline constexpr std::int32_t kReportRed = 255;

// Colours the whole text of `box`, out of sight; leaves the caret at 0.
void ColourReport(TextControl& box, EditorFlags& flags, std::int32_t commentColour);

}  // namespace korvex
