// Arbitrary bytes as a user's session with one of the chip wizards: a row of
// field changes, clicks, key presses, Yes/No answers and inputs, each run
// through the change operation of its control as the dialog would run it,
// and the program generated at the end. A refused use (a disabled field, a
// value the control can't take) is the dialog saying no and the session goes
// on, and so does a failure of the arithmetic outside the traps, which by
// rule ends only that generation. A crash, a hang, a sanitizer report, any
// other escaping exception, or a generation guard that an action leaves held
// is a finding.
//
// Field names come from the wizard's own registry, picked by index, so that
// the bytes don't have to spell them.
//
// Input: one byte of options (bit 0 the decimal mark, the bits above pick the
// chip; 0 is the 80C52 / 80C32, so older seeds keep their meaning), then
// steps, each an action byte and what that action reads:
//   0 set       field byte, then for a text field or an editable list a
//               length byte and the text, else a byte for the index
//               (one past the end as well, which must be refused);
//               bit 3 of the action: leave the field afterwards
//   1 click     button byte
//   2 answer    the next question gets Yes when bit 3 of the action is set
//   3 input     length byte and the text for the next input box
//   4 key       field byte, key byte, selection length byte
//   5 leave     field byte: the field loses the focus
//   6 again     "Abbrechen" and opening the wizard again
//   7 tab       byte for the page shown

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "base/failure.h"
#include "wizards/core/wizard_host.h"
#include "wizards/wizard_factory.h"

namespace {

using namespace korvex::wizards;

// The bytes of one input, read front to back; past the end everything is 0.
class Reader {
  public:
    Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
    bool atEnd() const { return position_ >= size_; }
    std::uint8_t byte() { return atEnd() ? 0 : data_[position_++]; }
    std::string text() {
        const std::size_t length = byte() % 24;
        std::string out;
        for (std::size_t i = 0; i < length && !atEnd(); ++i) out += static_cast<char>(byte());
        return out;
    }

  private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t position_ = 0;
};

// What a field takes when set by index: options, list items, or 0/1.
std::size_t choices(const ControlRef& ref) {
    if (const auto* group = std::get_if<OptionGroup*>(&ref)) return (*group)->buttons.size();
    if (const auto* list = std::get_if<ComboBox*>(&ref)) return (*list)->items.size();
    if (const auto* slider = std::get_if<Slider*>(&ref)) {
        return static_cast<std::size_t>((*slider)->maximum) + 1;
    }
    return 2;
}

bool typed(const ControlRef& ref) {
    if (std::holds_alternative<TextBox*>(ref)) return true;
    const auto* list = std::get_if<ComboBox*>(&ref);
    return list != nullptr && (*list)->editable;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Reader in(data, size);
    ScriptedWizardHost host;
    WizardOptions options;
    const std::uint8_t flags = in.byte();
    options.numberFormat.decimalMark = (flags & 1) != 0 ? '.' : ',';
    options.now = [] { return std::string("01.01.2024 12:00:00"); };  // the same header every run
    options.programFolder = KORVEX_DATA_DIR "/";
    const std::vector<std::string> chips = wizardChips();
    const std::size_t chip = (static_cast<std::size_t>(flags >> 1) + 1) % chips.size();
    const std::unique_ptr<Wizard> made = makeWizard(chips[chip], host, options);
    Wizard& wizard = *made;
    wizard.openWizard();

    const auto& fields = wizard.controls().all();
    std::vector<std::size_t> buttons;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (std::holds_alternative<CommandButton*>(fields[i].second)) buttons.push_back(i);
    }
    const auto field = [&](std::uint8_t pick) -> const auto& {
        return fields[pick % fields.size()].second;
    };

    for (int steps = 0; !in.atEnd() && steps < 64; ++steps) {
        const std::uint8_t action = in.byte();
        const bool flag = (action & 8) != 0;
        try {
            switch (action & 7) {
                case 0: {
                    const ControlRef& ref = field(in.byte());
                    const Control& control = baseOf(ref);
                    const std::string value =
                        typed(ref) ? in.text() : std::to_string(in.byte() % (choices(ref) + 1));
                    wizard.userSets(control.name, control.index, value);
                    if (flag) wizard.userLeaves(control.name, control.index);
                    break;
                }
                case 1: {
                    if (buttons.empty()) break;
                    const Control& control =
                        baseOf(fields[buttons[in.byte() % buttons.size()]].second);
                    wizard.userClicks(control.name, control.index);
                    break;
                }
                case 2: host.answers.push_back(flag); break;
                case 3: host.inputs.push_back(in.text()); break;
                case 4: {
                    // Keys and the focus reach only a field the user can get to.
                    const Control& control = baseOf(field(in.byte()));
                    if (!control.enabled || !control.visible) break;
                    const auto key = static_cast<std::int16_t>(in.byte());
                    wizard.userPresses(control.name, control.index, key, in.byte() % 8);
                    break;
                }
                case 5: {
                    const Control& control = baseOf(field(in.byte()));
                    if (!control.enabled || !control.visible) break;
                    wizard.userLeaves(control.name, control.index);
                    break;
                }
                case 6:
                    wizard.cancelWizard();
                    wizard.openWizard();
                    break;
                default: wizard.selectTab(in.byte() % 8); break;
            }
        } catch (const ControlUseError&) {
            // The dialog refuses this use; the session goes on.
        } catch (const korvex::RuntimeFailure&) {
            // Outside its traps a failure of the arithmetic ends that
            // generation, as designed; the dialog stays usable.
        }
        // Whatever happened, no operation may keep the generation held back:
        // the program would never follow the settings again.
        if (wizard.generationHeldBy() != 0) {
            std::fprintf(stderr, "generation guard left at %d\n", wizard.generationHeldBy());
            std::abort();
        }
    }
    volatile std::size_t length = wizard.previewText().size();
    (void)length;
    return 0;
}
