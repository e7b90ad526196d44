#pragma once
// The controls of a wizard as plain data: what the dialog shows and what the
// interlocks change. A control carries its name (and its place in a control
// array), so that change events, the command line and the view can find it.
// Values, enabled and visible belong here, not to any widget.

#include <cstdint>
#include <string>
#include <vector>

namespace korvex::wizards {

struct Control {
    std::string name;
    int index = -1;  // place in a control array; -1 for a single control
    bool enabled = true;
    bool visible = true;
    std::string toolTip;
};

struct TextBox : Control {
    std::string text;
    bool locked = false;  // an output field: shown, not typed in
    // The describing text beside the field where the dialog has no named label.
    std::string label;
};

struct CheckBox : Control {
    std::int16_t value = 0;
    std::string caption;
};

struct OptionButton {
    std::string caption;
    bool enabled = true;
    bool visible = true;
};

// A control array of option buttons: exactly one is selected.
struct OptionGroup : Control {
    std::vector<OptionButton> buttons;
    std::int16_t selected = 0;
};

struct ComboBox : Control {
    std::vector<std::string> items;
    std::int16_t listIndex = -1;
    std::string text;  // for the editable lists what is typed, else the item's text
    bool editable = false;
    int width = 0;  // in twips, where the interlocks change it
};

// A slider: a whole number from `minimum` to `maximum`.
struct Slider : Control {
    std::int16_t value = 0;
    std::int16_t minimum = 0;
    std::int16_t maximum = 0;
};

struct Label : Control {
    std::string caption;
};

struct CommandButton : Control {
    std::string caption;
};

struct Frame : Control {
    std::string caption;
};

}  // namespace korvex::wizards
