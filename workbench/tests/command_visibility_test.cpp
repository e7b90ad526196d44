// Which toolbar buttons show, by the kind of the active window.

#include "workbench/command_visibility.h"

#include <gtest/gtest.h>

namespace korvex {
namespace {

std::string shown(const CommandVisibility& visibility) {
    std::string marks;
    for (bool on : visibility.toolbar) marks += on ? 'x' : '.';
    return marks;
}

TEST(CommandVisibility, FollowsTheActiveWindowsKind) {
    EXPECT_EQ(shown(commandVisibility(ChildKind::Source)), "xxxxxxxxxxxxxxxxxxxxx");
    EXPECT_TRUE(commandVisibility(ChildKind::Source).documentMenu);
    EXPECT_EQ(shown(commandVisibility(ChildKind::Listing)), "xxxxx.xxxxxxx....xxx.");
    EXPECT_TRUE(commandVisibility(ChildKind::Listing).mainEditMenu);
    for (ChildKind kind :
         {ChildKind::None, ChildKind::Compile, ChildKind::HexDump, ChildKind::CpuDriver}) {
        EXPECT_EQ(shown(commandVisibility(kind)), "xxxxx................");
        EXPECT_FALSE(commandVisibility(kind).documentMenu);
        EXPECT_FALSE(commandVisibility(kind).mainEditMenu);
    }
}

}  // namespace
}  // namespace korvex
