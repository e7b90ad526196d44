#include "wizards/core/wizard.h"

#include <ctime>
#include <stdexcept>
#include <type_traits>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex::wizards {
namespace {

std::string controlText(const std::string& name, int index) {
    return ControlRegistry::keyOf(name, index);
}

}  // namespace

std::string presentDateTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char buffer[32];
    std::strftime(buffer, sizeof buffer, "%d.%m.%Y %H:%M:%S", &local);
    return buffer;
}

Wizard::Wizard(WizardHost& host, WizardOptions options)
    : host_(host), options_(std::move(options)) {}

Wizard::~Wizard() = default;

template <typename Action>
auto Wizard::observed(Action&& action) {
    if (observer_ == nullptr || actionDepth_ > 0) return action();
    const ControlSnapshot before = ControlSnapshot::take(registry_);
    const std::string previewBefore = preview_;
    ++actionDepth_;
    try {
        if constexpr (std::is_void_v<decltype(action())>) {
            action();
            --actionDepth_;
            tellObserver(before, previewBefore);
        } else {
            auto result = action();
            --actionDepth_;
            tellObserver(before, previewBefore);
            return result;
        }
    } catch (...) {
        // A refused action changes nothing as a rule; whatever it did change
        // is still shown.
        --actionDepth_;
        tellObserver(before, previewBefore);
        throw;
    }
}

void Wizard::tellObserver(const ControlSnapshot& before, const std::string& previewBefore) {
    const std::vector<ControlChange> changes = before.changesUntil(registry_);
    if (!changes.empty()) observer_->controlsChanged(changes);
    if (preview_ != previewBefore) observer_->previewChanged(preview_);
}

void Wizard::openWizard() {
    observed([this] {
        if (!loaded_) {
            loaded_ = true;
            loadSettings();
        }
        windowVisible_ = true;
    });
}

void Wizard::transferToEditor(EditorAccess& editor) {
    if (transferPreview(preview_, editor, host_) == TransferOutcome::Transferred) {
        windowVisible_ = false;
    }
}

void Wizard::userSets(const std::string& name, int index, const std::string& value) {
    observed([&] { setByUser(name, index, value); });
}

void Wizard::setByUser(const std::string& name, int index, const std::string& value) {
    const auto found = registry_.find(name, index);
    if (!found) throw ControlUseError(text8("unbekanntes Feld ") + controlText(name, index), true);
    const Control& base = baseOf(*found);
    if (!base.enabled || !base.visible) {
        throw ControlUseError(
            text8("das Feld ") + controlText(name, index) + text8(" ist gesperrt oder verborgen."),
            false);
    }
    const auto number = [&](std::size_t limit) {
        const std::int64_t n = parseDecimal(value, -1);
        if (n < 0 || static_cast<std::size_t>(n) >= limit) {
            throw ControlUseError(
                text8("unzulässiger Wert ") + value + text8(" für ") + controlText(name, index),
                true);
        }
        return static_cast<int>(n);
    };
    if (auto* box = std::get_if<TextBox*>(&*found)) {
        if ((*box)->locked) {
            throw ControlUseError(
                text8("das Feld ") + controlText(name, index) + text8(" zeigt nur an."), false);
        }
        setText(**box, value);
    } else if (auto* check = std::get_if<CheckBox*>(&*found)) {
        setCheck(**check, number(2));
    } else if (auto* group = std::get_if<OptionGroup*>(&*found)) {
        const int option = number((*group)->buttons.size());
        const OptionButton& button = (*group)->buttons[static_cast<std::size_t>(option)];
        if (!button.enabled || !button.visible) {
            throw ControlUseError(text8("die Option ") + controlText(name, option) +
                                      text8(" ist gesperrt oder verborgen."),
                                  false);
        }
        selectOption(**group, option);
    } else if (auto* slider = std::get_if<Slider*>(&*found)) {
        const int position = number(static_cast<std::size_t>((*slider)->maximum) + 1);
        if (position < (*slider)->minimum) {
            throw ControlUseError(
                text8("unzulässiger Wert ") + value + text8(" für ") + controlText(name, index),
                true);
        }
        setSlider(**slider, position);
    } else if (auto* list = std::get_if<ComboBox*>(&*found)) {
        if ((*list)->editable) {
            setListText(**list, value);
        } else {
            setListIndex(**list, number((*list)->items.size()));
        }
    } else {
        throw ControlUseError(
            text8("das Feld ") + controlText(name, index) + text8(" nimmt keinen Wert an."), true);
    }
}

void Wizard::userClicks(const std::string& name, int index) {
    const auto found = registry_.find(name, index);
    if (!found || !std::holds_alternative<CommandButton*>(*found)) {
        throw ControlUseError(text8("keine Schaltfläche ") + controlText(name, index), true);
    }
    if (!baseOf(*found).enabled || !baseOf(*found).visible) {
        throw ControlUseError(text8("die Schaltfläche ") + controlText(name, index) +
                                  text8(" ist gesperrt oder verborgen."),
                              false);
    }
    const auto handler = click_.find(name);
    if (handler != click_.end()) observed([&] { handler->second(index); });
}

void Wizard::userLeaves(const std::string& name, int index) {
    const auto handler = leave_.find(name);
    if (handler != leave_.end()) observed([&] { handler->second(index); });
}

std::int16_t Wizard::userPresses(const std::string& name, int index, std::int16_t key,
                                 int selectionLength) {
    const auto handler = key_.find(name);
    if (handler != key_.end()) observed([&] { handler->second(index, selectionLength, key); });
    return key;
}

void Wizard::setCheck(CheckBox& box, int value) {
    if (box.value == value) return;
    box.value = static_cast<std::int16_t>(value);
    fireChange(box);
}

void Wizard::selectOption(OptionGroup& group, int index) {
    if (group.selected == index) return;
    group.selected = static_cast<std::int16_t>(index);
    Control event = group;
    event.index = index;
    fireChange(event);
}

void Wizard::setListIndex(ComboBox& list, int index) {
    if (list.listIndex == index) return;
    list.listIndex = static_cast<std::int16_t>(index);
    if (index >= 0 && static_cast<std::size_t>(index) < list.items.size()) {
        list.text = list.items[static_cast<std::size_t>(index)];
    }
    fireChange(list);
}

void Wizard::setSlider(Slider& slider, int value) {
    if (slider.value == value) return;
    slider.value = static_cast<std::int16_t>(value);
    fireChange(slider);
}

void Wizard::setText(TextBox& box, const std::string& text) {
    if (box.text == text) return;
    box.text = text;
    fireChange(box);
}

void Wizard::setListText(ComboBox& list, const std::string& text) {
    if (list.text == text) return;
    list.text = text;
    list.listIndex = -1;
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        if (list.items[i] == text) list.listIndex = static_cast<std::int16_t>(i);
    }
    fireChange(list);
}

void Wizard::fireChange(const Control& control) {
    const auto handler = change_.find(control.name);
    if (handler != change_.end()) {
        handler->second(control.index);
    } else {
        regenerateProgram();
    }
}

void Wizard::checkBinding(const std::string& name) const {
    if (!registry_.holds(name)) throw std::logic_error("Wizard: kein Steuerelement " + name);
}

void Wizard::onChange(const std::string& name, Handler handler) {
    checkBinding(name);
    change_[name] = std::move(handler);
}

void Wizard::onLeave(const std::string& name, Handler handler) {
    checkBinding(name);
    leave_[name] = std::move(handler);
}

void Wizard::onClick(const std::string& name, Handler handler) {
    checkBinding(name);
    click_[name] = std::move(handler);
}

void Wizard::onKey(const std::string& name, KeyHandler handler) {
    checkBinding(name);
    key_[name] = std::move(handler);
}

void Wizard::withArithmeticTrap(const std::function<void()>& operation) {
    const auto report = [this](const RuntimeFailure& failure) {
        host_.failure(failureHeadline("Fehler Nummer", failure, false) + "\r\n" +
                      failure.description() + text8(": Überprüfen Sie Ihre Eingaben."));
    };
    try {
        operation();
    } catch (const RuntimeFailure& failure) {
        report(failure);
    } catch (const std::out_of_range&) {
        // An index past a table's end is the host's failure 9, not an abort.
        report(RuntimeFailure(FailureNumber::IndexOutOfRange));
    }
}

void Wizard::setPreview(std::string text) {
    preview_ = std::move(text);
    colouring_ = commentColouring(preview_, options_.commentColour);
}

std::string Wizard::nowText() const {
    return options_.now ? options_.now() : presentDateTime();
}

}  // namespace korvex::wizards
