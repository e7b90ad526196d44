#pragma once
// Code that edits the text sets the editor's flags first and clears them
// last, and does whole-document work out of sight. These guards do both and
// put back what was there, also when a failure leaves early.

#include "workbench/text_control.h"

namespace korvex {

class FlagGuard {
  public:
    explicit FlagGuard(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~FlagGuard() { flag_ = before_; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

  private:
    bool& flag_;
    bool before_;
};

class OutOfSight {
  public:
    explicit OutOfSight(TextControl& box) : box_(box), before_(box.DrawingSuspended()) {
        box_.SetDrawingSuspended(true);
    }
    ~OutOfSight() { box_.SetDrawingSuspended(before_); }
    OutOfSight(const OutOfSight&) = delete;
    OutOfSight& operator=(const OutOfSight&) = delete;

  private:
    TextControl& box_;
    bool before_;
};

}  // namespace korvex
