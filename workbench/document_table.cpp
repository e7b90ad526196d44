#include "workbench/document_table.h"

namespace korvex {

DocumentWindow::~DocumentWindow() = default;
Workspace::~Workspace() = default;
FileDialogs::~FileDialogs() = default;

int DocumentTable::takeFreeSlot() {
    for (int slot = 1; slot <= size(); ++slot) {
        if (state(slot).Deleted) {
            state(slot) = DocumentState{};
            return slot;
        }
    }
    slots_.emplace_back();
    return size();
}

void DocumentTable::release(int slot) {
    if (!valid(slot)) return;
    Slot& entry = slots_[index(slot)];
    entry.state.Deleted = true;
    entry.state.Dirty = false;
    entry.window = nullptr;
}

DocumentWindow* DocumentTable::window(int slot) const {
    return valid(slot) && !slots_[index(slot)].state.Deleted ? slots_[index(slot)].window : nullptr;
}

int DocumentTable::slotOf(const DocumentWindow* window) const {
    if (window == nullptr) return 0;
    for (int slot = 1; slot <= size(); ++slot) {
        if (this->window(slot) == window) return slot;
    }
    return 0;
}

std::vector<int> DocumentTable::openSlots() const {
    std::vector<int> open;
    for (int slot = 1; slot <= size(); ++slot) {
        if (!slots_[index(slot)].state.Deleted) open.push_back(slot);
    }
    return open;
}

}  // namespace korvex
