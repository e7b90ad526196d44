#pragma once
// Documents and DocumentStates: the table of source windows, slots counted
// from 1. A closed window leaves its slot Deleted for the next new document,
// so "Unbenannt n" reuses the number of a closed window.

#include <vector>

#include "workbench/document_window.h"

namespace korvex {

struct DocumentState {
    bool Deleted = false;  // the slot is free
    bool Dirty = false;    // the text differs from the file
};

class DocumentTable {
  public:
    int size() const { return static_cast<int>(slots_.size()); }
    bool valid(int slot) const { return slot >= 1 && slot <= size(); }

    // The first Deleted slot from 1 upward, taken; else a new slot at the end.
    int takeFreeSlot();
    // Sets Deleted and forgets the window.
    void release(int slot);

    DocumentState& state(int slot) { return slots_.at(index(slot)).state; }
    const DocumentState& state(int slot) const { return slots_.at(index(slot)).state; }
    DocumentWindow* window(int slot) const;
    void setWindow(int slot, DocumentWindow* window) { slots_.at(index(slot)).window = window; }

    // The slot holding this window, 0 if none.
    int slotOf(const DocumentWindow* window) const;
    // Slots not Deleted, in order.
    std::vector<int> openSlots() const;
    bool anyOpen() const { return !openSlots().empty(); }

    // The slot that last became active or last had a selection change; 0 when none.
    int ActiveDocument = 0;

  private:
    struct Slot {
        DocumentWindow* window = nullptr;
        DocumentState state;
    };
    static std::size_t index(int slot) { return static_cast<std::size_t>(slot - 1); }

    std::vector<Slot> slots_;
};

}  // namespace korvex
