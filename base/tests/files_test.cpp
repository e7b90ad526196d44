// Whole files: failures that name the file, and writes that leave the old
// file or the new one, never a part, a planted link or a stray temporary.

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/failure.h"
#include "base/files.h"
#include "base/program_folder.h"
#include "testing/unprivileged.h"

namespace korvex {
namespace {

namespace fs = std::filesystem;

std::string contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Writes past `bytes` fail as on a full disk, for the life of the object.
class DiskFullAfter {
  public:
    explicit DiskFullAfter(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        previous_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = old_;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~DiskFullAfter() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, previous_);
    }

  private:
    rlimit old_{};
    void (*previous_)(int) = nullptr;
};

class FilesTest : public ::testing::Test {
  protected:
    void SetUp() override { folder_ = makePrivateTemporaryFolder(); }
    void TearDown() override { fs::remove_all(folder_); }
    std::size_t entries() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), {}));
    }
    std::string folder_;
};

int failureNumberOf(const std::function<void()>& action, std::string* file = nullptr) {
    try {
        action();
    } catch (const RuntimeFailure& failure) {
        if (file != nullptr) *file = failure.file();
        return failure.number();
    }
    return 0;
}

TEST_F(FilesTest, ReadFailuresTellMissingFromForbiddenAndNameTheFile) {
    std::string file;
    EXPECT_EQ(failureNumberOf([&] { readWholeFile(folder_ + "fehlt.a51"); }, &file), 53);
    EXPECT_EQ(file, folder_ + "fehlt.a51");
    EXPECT_EQ(failureNumberOf([&] { readWholeFile(folder_); }, &file), 75);

    const std::string secret = folder_ + "geheim.a51";
    std::ofstream(secret) << "NOP\r\n";
    fs::permissions(secret, fs::perms::owner_write);
    fs::permissions(folder_, fs::perms::all);
    EXPECT_EQ(
        testing::runUnprivileged([&] { return failureNumberOf([&] { readWholeFile(secret); }); }),
        70);
}

TEST_F(FilesTest, AFailedWriteLeavesTheOldFilesAndNoTemporary) {
    std::ofstream(folder_ + "prog.l51") << "altes Listing";
    std::ofstream(folder_ + "prog.h51") << "altes Hex";
    std::string file;
    {
        const DiskFullAfter full(100);
        EXPECT_EQ(failureNumberOf(
                      [&] { writeWholeFile(folder_ + "prog.h51", std::string(4096, 'x')); }, &file),
                  75);
        // A set of outputs takes its names only when all are whole.
        FileSetWriter outputs;
        outputs.add(folder_ + "prog.l51", "neues Listing");
        EXPECT_EQ(
            failureNumberOf([&] { outputs.add(folder_ + "prog.h51", std::string(500, 'x')); }), 75);
    }
    EXPECT_EQ(file, folder_ + "prog.h51");
    EXPECT_EQ(contents(folder_ + "prog.l51"), "altes Listing");
    EXPECT_EQ(contents(folder_ + "prog.h51"), "altes Hex");
    EXPECT_EQ(entries(), 2u);
    EXPECT_EQ(failureNumberOf([&] { writeWholeFile(folder_ + "nix/prog.h51", "x"); }), 76);

    FileSetWriter outputs;
    outputs.add(folder_ + "prog.l51", "neu");
    EXPECT_EQ(contents(folder_ + "prog.l51"), "altes Listing");
    outputs.commit();
    EXPECT_EQ(contents(folder_ + "prog.l51"), "neu");
}

TEST_F(FilesTest, NoLinkIsFollowedAndStaleTemporariesGo) {
    const std::string target = folder_ + "korvex.cfg";
    const std::string victim = folder_ + "opfer";
    std::ofstream(victim) << "bleibt";
    // The name the writer used to choose, planted as a link.
    fs::create_symlink(victim, target + "." + std::to_string(::getpid()) + ".tmp");

    // A temporary of a run that was killed, and one of a run still going (this one).
    const pid_t gone = ::fork();
    if (gone == 0) ::_exit(0);
    ::waitpid(gone, nullptr, 0);
    const std::string stale = folder_ + ".korvex.cfg." + std::to_string(gone) + "-abcdef.tmp";
    const std::string live = folder_ + ".korvex.cfg." + std::to_string(::getpid()) + "-ghijkl.tmp";
    std::ofstream(stale) << "halb";
    std::ofstream(live) << "halb";

    replaceFileAtomically(target, "neu");
    EXPECT_EQ(contents(target), "neu");
    EXPECT_EQ(contents(victim), "bleibt");
    EXPECT_FALSE(fs::exists(stale));
    EXPECT_TRUE(fs::exists(live));
}

TEST(Failures, ExceptionsAtATrapBecomeTheHostsFailures) {
    const auto at = [](const std::function<void()>& thrower) {
        try {
            thrower();
        } catch (...) {
            return currentFailure().number();
        }
        return 0;
    };
    EXPECT_EQ(at([] { raise(FailureNumber::Overflow); }), 6);
    EXPECT_EQ(at([] { throw std::out_of_range("at"); }), 9);
    EXPECT_EQ(at([] { throw std::bad_alloc(); }), 7);
    EXPECT_EQ(at([] { throw 42; }), 5);

    RuntimeFailure failure(FailureNumber::FileNotFound, "/tmp/teil.a51");
    failure.withHint("Hinweis.");
    EXPECT_EQ(failureBoxText(failure, "assembleSource"),
              "Fehler Nummer 53 wurde ausgel\xF6st von Korvex\r\nDatei nicht gefunden\r\n"
              "Sub: assembleSource\r\nDatei: /tmp/teil.a51\r\nHinweis.");
}

}  // namespace
}  // namespace korvex
