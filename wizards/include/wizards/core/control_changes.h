#pragma once
// What a dialog needs to hear after a user action: which controls changed in
// what they show, and the new program text. The wizard's operations write the
// record's plain data directly, so the changes are found by comparing the
// shown state of every control before and after the action.

#include <cstdint>
#include <string>
#include <vector>

#include "wizards/core/control_registry.h"

namespace korvex::wizards {

enum ControlAspect : std::uint8_t {
    AspectValue = 1,    // value, selection, text
    AspectEnabled = 2,  // enabled, locked, and the option buttons' enabled
    AspectVisible = 4,  // visible, and the option buttons' visible
    AspectCaption = 8,  // caption, label, tool tip, the option buttons' captions
    AspectItems = 16,   // a list's items and width
};

struct ControlChange {
    std::string key;  // "ICheck1(4)"
    ControlRef control;
    std::uint8_t aspects = 0;
    bool has(ControlAspect aspect) const { return (aspects & aspect) != 0; }
};

class WizardObserver {
  public:
    virtual ~WizardObserver();
    // Once per user action, in the record's order; never empty.
    virtual void controlsChanged(const std::vector<ControlChange>& changes) = 0;
    // Once per user action that gave another program text.
    virtual void previewChanged(const std::string& text) = 0;
};

// The shown state of every control of a registry at one moment.
class ControlSnapshot {
  public:
    static ControlSnapshot take(const ControlRegistry& registry);
    // The controls of `registry` that differ from this earlier picture.
    std::vector<ControlChange> changesUntil(const ControlRegistry& registry) const;

    struct Shown {
        std::string value;
        std::string enabled;
        std::string visible;
        std::string caption;
        std::vector<std::string> items;
        bool operator==(const Shown&) const = default;
    };

  private:
    std::vector<Shown> shown_;
};

}  // namespace korvex::wizards
