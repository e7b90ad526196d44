#pragma once
// The table of differences that each chip's wizard lays on the base: its
// window, its driver, how it writes register loads, its tabs and its
// interrupt sources. Whatever a chip changes beyond these it does in the
// sections and operations it overrides.

#include <span>
#include <string>
#include <vector>

#include "wizards/assistent52/interrupt_sources.h"
#include "wizards/core/literal_style.h"

namespace korvex::wizards::assistent52 {

struct ChipProfile {
    std::string windowTitle;
    std::string cpu;  // the driver named in "#cpu = "
    LiteralStyle style = LiteralStyle::Compact;
    std::string bankMnemonic = "orl";  // three chips write "or PSW, # "
    std::string mode2Caption = "Modus 2, asynchron, 11 Bit, ";
    std::vector<std::string> tabs;
    std::span<const InterruptSource> interrupts;
    bool indentedVectorJumps = false;  // "\tajmp ..." under each vector label
};

const ChipProfile& profile80C52();

}  // namespace korvex::wizards::assistent52
