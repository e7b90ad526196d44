// What is assembled: a window's own text or its project's, and a project made
// of includes and macros gives the same image from disk and from windows.

#include <gtest/gtest.h>

#include "assembler/compile_source.h"
#include "assembler_fixture.h"

namespace korvex::testing {
namespace {

class CompileSourceTest : public AssemblerFixture {
  protected:
    std::string assembleProject(const std::string& caption, const std::string& text) {
        const auto source = decideCompileSource(caption, text, host_);
        EXPECT_TRUE(source.has_value());
        if (!source) return {};
        writeFile("TmpFile.tmp", source->text);
        std::string name = source->name;
        EXPECT_EQ(assembler_->assembleSource(name, {}), RunOutcome::Completed);
        EXPECT_EQ(markers(), std::vector<std::string>{});
        return image();
    }
};

const char* const kMain =
    "#cpu test\r\n"
    "#def Load(reg,val) {mov (reg), #(val)}\r\n"
    "#include lib.a51\r\n"
    "        Load(R2,3)\r\n"
    "        Twice\r\n"
    "        SJMP HIER\r\n";
const char* const kLib =
    "; #part of main.a51\r\n"
    "#def Twice {INC R2 : INC R2}\r\n"
    "        MOV R2,#1\r\n";

TEST_F(CompileSourceTest, ProjectFromDiskAndFromWindowsGivesOneImage) {
    writeFile("main.a51", kMain);
    writeFile("lib.a51", kLib);
    const std::string fromDisk = assembleProject(folder_ + "lib.a51", kLib);
    EXPECT_EQ(fromDisk, std::string("\x7A\x01\x7A\x03\x0A\x0A\x80\xFE", 8));

    // The same texts, unsaved in windows, over outdated files on disk.
    writeFile("main.a51", "garbage\r\n");
    writeFile("lib.a51", "garbage\r\n");
    host_.windows[folder_ + "main.a51"] = kMain;
    host_.windows[folder_ + "LIB.A51"] = kLib;
    EXPECT_EQ(assembleProject(folder_ + "lib.a51", kLib), fromDisk);
    EXPECT_EQ(readFile("lib.a51"), "garbage\r\n");  // no file of the user is written
}

TEST_F(CompileSourceTest, NothingToAssemble) {
    EXPECT_FALSE(decideCompileSource("Disassembling x.d51", "NOP\r\n", host_));
    EXPECT_FALSE(decideCompileSource(folder_ + "a.a51", "", host_));
    EXPECT_FALSE(decideCompileSource(folder_ + "a.a51", "NOP\r\n#PART OF main.a51", host_));
    EXPECT_EQ(host_.boxCount, 0);
    EXPECT_FALSE(decideCompileSource(folder_ + "a.a51", "#Part of 'none.a51'\r\n", host_));
    EXPECT_EQ(host_.lastBoxText,
              "Kann Projektdatei none.a51 nicht finden.\r\nFehler ausgel\xF6st von #Part of ..");
    const auto own = decideCompileSource(folder_ + "a.a51", "NOP\r\n", host_);
    ASSERT_TRUE(own);
    EXPECT_EQ(own->name, folder_ + "a.a51");
}

}  // namespace
}  // namespace korvex::testing
