#pragma once
// Short constructors for the controls of a settings record, so that a
// record's member list reads like the dialog's field table. Captions are
// UTF-8 literals of the source and enter the record as Windows-1252.

#include <cstdint>
#include <initializer_list>
#include <string>

#include "base/cp1252.h"
#include "wizards/core/controls.h"

namespace korvex::wizards::build {

template <typename C>
C named(const char* name, int index = -1) {
    C control;
    control.name = name;
    control.index = index;
    return control;
}

inline TextBox textBox(const char* name, const char* text, const char* label = "") {
    auto box = named<TextBox>(name);
    box.text = text8(text);
    box.label = text8(label);
    return box;
}

inline CheckBox checkBox(const char* name, const char* caption, int index = -1) {
    auto box = named<CheckBox>(name, index);
    box.caption = text8(caption);
    return box;
}

inline OptionGroup optionGroup(const char* name, std::initializer_list<const char*> captions,
                               int selected) {
    auto group = named<OptionGroup>(name);
    for (const char* caption : captions) group.buttons.push_back({text8(caption), true, true});
    group.selected = static_cast<std::int16_t>(selected);
    return group;
}

// Without a selection until the wizard's load sets one; `selected` gives it at once.
inline ComboBox comboBox(const char* name, std::initializer_list<const char*> items,
                         bool editable = false, int selected = -1) {
    auto list = named<ComboBox>(name);
    for (const char* item : items) list.items.push_back(text8(item));
    list.editable = editable;
    if (selected >= 0 && static_cast<std::size_t>(selected) < list.items.size()) {
        list.listIndex = static_cast<std::int16_t>(selected);
        list.text = list.items[static_cast<std::size_t>(selected)];
    }
    return list;
}

inline Slider slider(const char* name, int minimum, int maximum, int value = 0, int index = -1) {
    auto s = named<Slider>(name, index);
    s.minimum = static_cast<std::int16_t>(minimum);
    s.maximum = static_cast<std::int16_t>(maximum);
    s.value = static_cast<std::int16_t>(value);
    return s;
}

inline Label label(const char* name, const char* caption) {
    auto l = named<Label>(name);
    l.caption = text8(caption);
    return l;
}

inline CommandButton command(const char* name, const char* caption, bool enabled = true) {
    auto button = named<CommandButton>(name);
    button.caption = text8(caption);
    button.enabled = enabled;
    return button;
}

inline Frame frame(const char* name, bool enabled = true) {
    auto f = named<Frame>(name);
    f.enabled = enabled;
    return f;
}

template <typename C>
C disabled(C control) {
    control.enabled = false;
    return control;
}

template <typename C>
C hidden(C control) {
    control.visible = false;
    return control;
}

template <typename C>
C withTip(C control, const char* tip) {
    control.toolTip = text8(tip);
    return control;
}

inline TextBox output(TextBox box) {
    box.locked = true;
    return box;
}

inline CheckBox checked(CheckBox box) {
    box.value = 1;
    return box;
}

}  // namespace korvex::wizards::build
