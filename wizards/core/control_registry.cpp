#include "wizards/core/control_registry.h"

namespace korvex::wizards {

std::string ControlRegistry::keyOf(const std::string& name, int index) {
    return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

void ControlRegistry::remove(const std::string& name) {
    std::erase_if(entries_, [&](const auto& entry) { return baseOf(entry.second).name == name; });
}

std::optional<ControlRef> ControlRegistry::find(const std::string& name, int index) const {
    const std::string key = keyOf(name, index);
    for (const auto& [k, ref] : entries_) {
        if (k == key) return ref;
    }
    return std::nullopt;
}

bool ControlRegistry::holds(const std::string& name) const {
    for (const auto& [key, ref] : entries_) {
        if (baseOf(ref).name == name) return true;
    }
    return false;
}

const Control& baseOf(const ControlRef& ref) {
    return std::visit([](auto* c) -> const Control& { return *c; }, ref);
}

}  // namespace korvex::wizards
