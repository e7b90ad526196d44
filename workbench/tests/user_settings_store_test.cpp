// The in-memory per-user store behaves as the classic one the recent-file
// list was written against.

#include <gtest/gtest.h>

#include "workbench/user_settings_store.h"

namespace korvex {
namespace {

TEST(MemoryUserSettingsStore, KeysIgnoreCaseAndListInTheOrderFirstSaved) {
    MemoryUserSettingsStore store;
    EXPECT_EQ(store.GetSetting(kRecentFilesSection, "RecentFile1", ""), "");
    EXPECT_EQ(store.GetSetting(kRecentFilesSection, "RecentFile1", "none"), "none");
    EXPECT_TRUE(store.GetAllSettings(kRecentFilesSection).empty());

    store.SaveSetting(kRecentFilesSection, "RecentFile2", "/b.a51");
    store.SaveSetting(kRecentFilesSection, "RecentFile1", "/a.a51");
    store.SaveSetting("Other", "RecentFile1", "/elsewhere");
    store.SaveSetting("recent files", "RECENTFILE2", "/c.a51");

    EXPECT_EQ(store.GetSetting(kRecentFilesSection, "recentfile2", ""), "/c.a51");
    const UserSettingsStore::Entries expected{{"RecentFile2", "/c.a51"}, {"RecentFile1", "/a.a51"}};
    EXPECT_EQ(store.GetAllSettings(kRecentFilesSection), expected);
}

}  // namespace
}  // namespace korvex
