#pragma once
// The guard that holds generation back while a compound change runs, so that
// the program is written once, at the end. Its value is the code of the
// operation that took it; 0 is idle. The codes only tell who the owner is,
// and an operation releases the guard when it still holds its own code, even
// if a nested one with the same code took it first.

#include <cstdint>

namespace korvex::wizards {

namespace guard_code {
inline constexpr std::int16_t kLoad = 1;  // load, and the nested Timer 2 function
inline constexpr std::int16_t kResetValues = 2;
inline constexpr std::int16_t kRunBitMirror = 3;
inline constexpr std::int16_t kNestedSerialCheck = 4;
inline constexpr std::int16_t kTimer1Mode = 6;
inline constexpr std::int16_t kTimer2Use = 7;
inline constexpr std::int16_t kTimer2Frequency = 8;
inline constexpr std::int16_t kSerialUse = 9;
inline constexpr std::int16_t kSerialMode = 10;
inline constexpr std::int16_t kRevertSerialLists = 11;  // both serial lists put back after a No
inline constexpr std::int16_t kChipRule = 12;           // a chip's own compound rule
inline constexpr std::int16_t kConflictAnswer = 98;
inline constexpr std::int16_t kGenerator = 99;
}  // namespace guard_code

class GenerationGuard {
  public:
    std::int16_t value() const { return value_; }
    bool idle() const { return value_ == 0; }
    void set(std::int16_t code) { value_ = code; }
    // Stores the code if the guard is idle.
    void take(std::int16_t code) {
        if (value_ == 0) value_ = code;
    }
    // Clears the guard if it holds this code.
    void release(std::int16_t code) {
        if (value_ == code) value_ = 0;
    }

  private:
    std::int16_t value_ = 0;
};

// Takes the guard for a compound operation and releases it at the end of the
// scope, also when a failure leaves the operation early.
class GuardHold {
  public:
    GuardHold(GenerationGuard& guard, std::int16_t code) : guard_(guard), code_(code) {
        guard_.take(code_);
    }
    ~GuardHold() { release(); }
    GuardHold(const GuardHold&) = delete;
    GuardHold& operator=(const GuardHold&) = delete;

    void release() { guard_.release(code_); }
    bool holds() const { return guard_.value() == code_; }

  private:
    GenerationGuard& guard_;
    std::int16_t code_;
};

// The chips' own compound rules nest into one another (a box that mirrors
// another, a switch that sets boxes with rules of their own). This hold takes
// the guard only when it is idle and gives back only what it took, so that a
// nested rule never ends an outer one's hold.
class OwnedGuardHold {
  public:
    OwnedGuardHold(GenerationGuard& guard, std::int16_t code = guard_code::kChipRule)
        : guard_(guard), code_(code), took_(guard.idle()) {
        if (took_) guard_.set(code_);
    }
    ~OwnedGuardHold() { release(); }
    OwnedGuardHold(const OwnedGuardHold&) = delete;
    OwnedGuardHold& operator=(const OwnedGuardHold&) = delete;

    void release() {
        if (took_) guard_.release(code_);
        took_ = false;
    }

  private:
    GenerationGuard& guard_;
    std::int16_t code_;
    bool took_;
};

}  // namespace korvex::wizards
