#pragma once
// Where each control of a wizard stands in its dialog: on which tab, in which
// frame, in one row with which others, and the caption beside a field whose
// own describing text is not part of the settings record. Plain data, so the
// placement of every chip's controls can be checked without a screen.

#include <string>
#include <vector>

namespace korvex::gui {

// The tab of a control, as an index into `tabs` (Windows-1252, as the wizard names them); -1 for
// the controls below the tabs ("Abbrechen", "Übernehmen") and for a name no rule knows.
int wizardTabOf(const std::string& chip, const std::vector<std::string>& tabs,
                const std::string& name, int index);

// The frame that holds a control ("UFrame1" holds "UOption1"), or empty.
std::string wizardFrameOf(const std::string& name);

// The controls that share one row with `key` (a name, or a member of an
// array as "T0Label(0)"), in their order from left to right; empty when it
// stands alone.
const std::vector<std::string>& wizardRowOf(const std::string& key);

// A control array shown beside another's member: the interrupt triggers
// stand in the row of their source. Empty name when there is none.
struct RowPlace {
    std::string array;
    int index = -1;
};
RowPlace wizardBesideRow(const std::string& name);

// The describing text left of a field or list that the record leaves
// without one, or the caption of a check box that has none (UTF-8); empty if
// none.
std::string wizardCaptionBeside(const std::string& chip, const std::string& name, int index);

}  // namespace korvex::gui
