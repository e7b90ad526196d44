#pragma once
// Finds a control of a settings record by its name, as "ICheck1(4)" for a
// member of a control array. The record registers its controls once; the
// registry keeps pointers, so the record must stay where it is.

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "wizards/core/controls.h"

namespace korvex::wizards {

using ControlRef = std::variant<TextBox*, CheckBox*, OptionGroup*, ComboBox*, Slider*, Label*,
                                CommandButton*, Frame*>;

class ControlRegistry {
  public:
    template <typename C>
    void add(C& control) {
        entries_.emplace_back(keyOf(control.name, control.index), ControlRef(&control));
    }
    template <typename Array>
    void addArray(Array& controls) {
        for (auto& c : controls) add(c);
    }

    // Takes a control, or all members of an array, out of reach: a chip that
    // lacks a unit of the base record drops its controls.
    void remove(const std::string& name);

    std::optional<ControlRef> find(const std::string& name, int index = -1) const;
    // Whether a control of this name is registered, alone or as an array.
    bool holds(const std::string& name) const;
    const std::vector<std::pair<std::string, ControlRef>>& all() const { return entries_; }

    static std::string keyOf(const std::string& name, int index);

  private:
    std::vector<std::pair<std::string, ControlRef>> entries_;
};

const Control& baseOf(const ControlRef& ref);

}  // namespace korvex::wizards
