// The start of the workbench: the windows it opens and the file named on the
// command line; its end: the settings written, a failure told.

#include "workbench/start_up.h"

#include <gtest/gtest.h>

#include "document_fixture.h"
#include "workbench/settings_file.h"
#include "workbench/settings_store.h"

namespace korvex {
namespace {

TEST(StartWindows, OneEmptyWindowOrTwoSideBySideWithTheFocusOnTheFirst) {
    DocumentBench one;
    openStartWindows(one.commands, one.documents, one.workspace, one.settings, "");
    ASSERT_EQ(one.workspace.windows.size(), 1u);
    EXPECT_EQ(one.active().caption(), "Unbenannt 1");
    EXPECT_EQ(one.active().half, -1);

    DocumentBench two;
    two.settings.TwoWindowsAtStart = 1;
    openStartWindows(two.commands, two.documents, two.workspace, two.settings, "");
    ASSERT_EQ(two.workspace.windows.size(), 2u);
    EXPECT_EQ(two.workspace.windows[0]->half, 0);
    EXPECT_EQ(two.workspace.windows[1]->caption(), "Unbenannt 2");
    EXPECT_EQ(two.workspace.windows[1]->half, 1);
    EXPECT_EQ(&two.active(), two.workspace.windows[0].get());
    EXPECT_EQ(two.documents.ActiveDocument, 1);
}

TEST(StartWindows, TheCommandLinesFileGoesIntoWindowOneAndTheRecentMenusAreFilled) {
    DocumentBench bench;
    const std::string name = bench.folder.write("start.a51", "nop\r\n");
    bench.store.SaveSetting("Recent Files", "RecentFile1", "/alt/a.a51");
    openStartWindows(bench.commands, bench.documents, bench.workspace, bench.settings,
                     "\"" + name + "\"");
    ASSERT_EQ(bench.workspace.windows.size(), 1u);
    EXPECT_EQ(bench.active().caption(), name);
    EXPECT_EQ(bench.workspace.menus, std::vector<std::string>{"/alt/a.a51"});
}

TEST(EndSettings, AreWrittenWholeAndAFailureIsToldNotThrown) {
    DocumentBench bench;
    bench.settings.ControllerName = "80C552";
    EXPECT_TRUE(writeEndSettings(bench.settings, bench.folder.path(), bench.host));
    EXPECT_EQ(readSettingsFile(bench.folder.path()).settings, bench.settings);

    EXPECT_FALSE(writeEndSettings(bench.settings, bench.folder.path() + "fehlt/", bench.host));
    ASSERT_EQ(bench.host.boxes.size(), 1u);
    EXPECT_NE(bench.host.boxes[0].text.find("Pfad nicht gefunden"), std::string::npos);
}

}  // namespace
}  // namespace korvex
