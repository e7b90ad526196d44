#include "wizards/core/control_changes.h"

#include <type_traits>

namespace korvex::wizards {
namespace {

std::string flag(bool on) {
    return on ? "1" : "0";
}

ControlSnapshot::Shown shownState(const ControlRef& ref) {
    ControlSnapshot::Shown shown;
    const Control& base = baseOf(ref);
    shown.enabled = flag(base.enabled);
    shown.visible = flag(base.visible);
    shown.caption = base.toolTip;
    std::visit(
        [&shown](auto* control) {
            using Type = std::remove_pointer_t<decltype(control)>;
            if constexpr (std::is_same_v<Type, TextBox>) {
                shown.value = control->text;
                shown.enabled += flag(control->locked);
                shown.caption += '\n' + control->label;
            } else if constexpr (std::is_same_v<Type, CheckBox>) {
                shown.value = std::to_string(control->value);
                shown.caption += '\n' + control->caption;
            } else if constexpr (std::is_same_v<Type, OptionGroup>) {
                shown.value = std::to_string(control->selected);
                for (const OptionButton& button : control->buttons) {
                    shown.enabled += flag(button.enabled);
                    shown.visible += flag(button.visible);
                    shown.caption += '\n' + button.caption;
                }
            } else if constexpr (std::is_same_v<Type, ComboBox>) {
                shown.value = std::to_string(control->listIndex) + '\n' + control->text;
                shown.items = control->items;
                shown.items.push_back(std::to_string(control->width));
            } else if constexpr (std::is_same_v<Type, Slider>) {
                shown.value = std::to_string(control->value);
            } else {
                shown.caption += '\n' + control->caption;
            }
        },
        ref);
    return shown;
}

}  // namespace

WizardObserver::~WizardObserver() = default;

ControlSnapshot ControlSnapshot::take(const ControlRegistry& registry) {
    ControlSnapshot snapshot;
    snapshot.shown_.reserve(registry.all().size());
    for (const auto& entry : registry.all()) snapshot.shown_.push_back(shownState(entry.second));
    return snapshot;
}

std::vector<ControlChange> ControlSnapshot::changesUntil(const ControlRegistry& registry) const {
    std::vector<ControlChange> changes;
    const auto& entries = registry.all();
    for (std::size_t i = 0; i < entries.size() && i < shown_.size(); ++i) {
        const Shown now = shownState(entries[i].second);
        const Shown& before = shown_[i];
        std::uint8_t aspects = 0;
        if (now.value != before.value) aspects |= AspectValue;
        if (now.enabled != before.enabled) aspects |= AspectEnabled;
        if (now.visible != before.visible) aspects |= AspectVisible;
        if (now.caption != before.caption) aspects |= AspectCaption;
        if (now.items != before.items) aspects |= AspectItems;
        if (aspects != 0) changes.push_back({entries[i].first, entries[i].second, aspects});
    }
    return changes;
}

}  // namespace korvex::wizards
