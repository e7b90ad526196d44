#pragma once
// What every chip wizard shares: the settings record behind a registry of
// controls, the generation guard and the revert flag, change events that run
// when a value really changes (a nested change runs its operation too; only
// generation is held back by the guard), the trap of the arithmetic, the
// preview with its colouring, and the transfer to the editor. A chip adds its
// record, binds one operation per control and writes its generator.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/failure.h"
#include "wizards/core/comment_colouring.h"
#include "wizards/core/control_changes.h"
#include "wizards/core/control_registry.h"
#include "wizards/core/editor_transfer.h"
#include "wizards/core/generation_guard.h"
#include "wizards/core/number_text.h"
#include "wizards/core/wizard_host.h"

namespace korvex::wizards {

struct WizardOptions {
    NumberFormat numberFormat;
    std::uint32_t commentColour = 0x008000;  // as the settings store it
    // Date and time for the header, in the system's form; the present moment when empty.
    std::function<std::string()> now;
    // The program's folder, ending in "/": where a wizard finds the files it
    // reads (the I²C routine of the 80C552).
    std::string programFolder;
};

// The present moment as a German system writes it: "23.11.2026 14:05:33".
std::string presentDateTime();

// A --set or click that names no control of the wizard, or a value the control can't take.
// `unknown` tells a name or value that doesn't exist from a control that
// exists but can't be used now (disabled, hidden, an output field).
class ControlUseError : public std::exception {
  public:
    ControlUseError(std::string message, bool unknown)
        : message_(std::move(message)), unknown_(unknown) {}
    const char* what() const noexcept override { return message_.c_str(); }
    bool unknown() const { return unknown_; }

  private:
    std::string message_;
    bool unknown_;
};

class Wizard {
  public:
    Wizard(WizardHost& host, WizardOptions options);
    virtual ~Wizard();
    Wizard(const Wizard&) = delete;
    Wizard& operator=(const Wizard&) = delete;

    virtual std::string windowTitle() const = 0;
    virtual std::vector<std::string> tabNames() const = 0;

    // First call: the load-time settings and a generation. Later calls show
    // the window again with the settings it has.
    void openWizard();
    // "Abbrechen": hides the window, nothing else.
    void cancelWizard() { windowVisible_ = false; }
    // "Übernehmen".
    void transferToEditor(EditorAccess& editor);
    virtual void regenerateProgram() = 0;

    bool windowVisible() const { return windowVisible_; }
    int selectedTab() const { return selectedTab_; }
    void selectTab(int tab) { selectedTab_ = tab; }

    const std::string& previewText() const { return preview_; }
    const std::vector<ColouredRange>& previewColouring() const { return colouring_; }

    // What the user does, by control name. Check boxes take 0 or 1, option
    // groups and lists the index, sliders their position, editable lists and
    // text fields their text.
    void userSets(const std::string& name, int index, const std::string& value);
    void userClicks(const std::string& name, int index = -1);
    void userLeaves(const std::string& name, int index = -1);
    // A key pressed in a field: the key after its filter (0: dropped).
    std::int16_t userPresses(const std::string& name, int index, std::int16_t key,
                             int selectionLength = 0);

    const ControlRegistry& controls() const { return registry_; }
    // The dialog that shows the wizard; told after each user action what
    // changed. Null: nobody listens.
    void setObserver(WizardObserver* observer) { observer_ = observer; }
    // No compound change is running and no list waits to be put back: what
    // a dialog may rely on between two user actions.
    bool atRest() const { return generationGuard_.idle() && revertPending_ == 0; }
    // Whether an operation still holds the generation back (its guard code).
    std::int16_t generationHeldBy() const { return generationGuard_.value(); }

  protected:
    using Handler = std::function<void(int index)>;
    using KeyHandler = std::function<void(int index, int selectionLength, std::int16_t& key)>;

    virtual void loadSettings() = 0;

    // Binding a handler to a name the record does not hold is a mistake of
    // the wizard's code: it throws std::logic_error at once instead of the
    // control silently falling back to plain regeneration.
    void onChange(const std::string& name, Handler handler);
    void onLeave(const std::string& name, Handler handler);
    void onClick(const std::string& name, Handler handler);
    void onKey(const std::string& name, KeyHandler handler);

    // Value changes that fire the control's change operation when the value differs.
    void setCheck(CheckBox& box, int value);
    void selectOption(OptionGroup& group, int index);
    void setListIndex(ComboBox& list, int index);
    void setText(TextBox& box, const std::string& text);
    void setListText(ComboBox& list, const std::string& text);
    void setSlider(Slider& slider, int value);
    // Runs the change operation of a control as an event would.
    void fireChange(const Control& control);

    // Runs `operation`; a failure of the arithmetic ends in the box "Fehler
    // Nummer ... Überprüfen Sie Ihre Eingaben." and leaves the settings as they are.
    void withArithmeticTrap(const std::function<void()>& operation);

    // The generator's end: the preview text and its colours.
    void setPreview(std::string text);
    std::string nowText() const;

    WizardHost& host_;
    WizardOptions options_;
    ControlRegistry registry_;
    GenerationGuard generationGuard_;
    Int16 revertPending_;

  private:
    void checkBinding(const std::string& name) const;
    void setByUser(const std::string& name, int index, const std::string& value);
    // Runs a user action and then tells the observer what it changed; a
    // nested action is part of the outer one.
    template <typename Action>
    auto observed(Action&& action);
    void tellObserver(const ControlSnapshot& before, const std::string& previewBefore);

    WizardObserver* observer_ = nullptr;
    int actionDepth_ = 0;

    std::map<std::string, Handler> change_;
    std::map<std::string, Handler> leave_;
    std::map<std::string, Handler> click_;
    std::map<std::string, KeyHandler> key_;
    std::string preview_;
    std::vector<ColouredRange> colouring_;
    bool loaded_ = false;
    bool windowVisible_ = false;
    int selectedTab_ = 0;
};

}  // namespace korvex::wizards
