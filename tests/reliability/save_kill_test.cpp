// The saving process is killed at every write and file operation in turn: afterwards the project's file
// or its newest backup is whole, and the form templates, which nobody changed, are there.

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "core/program/fixed_clock.h"
#include "core/program/process_clipboard.h"
#include "persist/project/project_load.h"
#include "posix/posix_files.h"
#include "tests/reliability/saved_shop.h"
#include "tests/support/failing_files.h"
#include "tests/support/fake_screen.h"

namespace varlo {
namespace {

using namespace test;
namespace fs = std::filesystem;

// Kills its own process at the n-th operation: before it, or half way through a write or copy.
class KillingFiles : public FailingFiles {
 public:
  using FailingFiles::FailingFiles;

  std::size_t write(FileHandle file, const void* data, std::size_t size) override {
    const std::size_t done = FailingFiles::write(file, data, size);
    killIfDue();
    return done;
  }
  bool copy(std::string_view from, std::string_view to, bool overwrite) override {
    const bool done = FailingFiles::copy(from, to, overwrite);
    killIfDue();
    return done;
  }

 protected:
  bool failsNow(const char* operation, std::string_view path) override {
    if (!FailingFiles::failsNow(operation, path)) return false;
    const std::string_view name = operation;
    halfWay_ = failure() == Failure::NoSpace && (name == "write" || name == "copy");
    if (!halfWay_) ::kill(::getpid(), SIGKILL);
    return true;
  }

 private:
  void killIfDue() {
    if (halfWay_) ::kill(::getpid(), SIGKILL);
  }
  bool halfWay_ = false;
};

class SaveKill : public testing::TestWithParam<Failure> {
 protected:
  fs::path folder = fs::temp_directory_path() / ("varlo_kill_" + std::to_string(::getpid()));

  void TearDown() override { fs::remove_all(folder); }

  static void put(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
  }
  static std::string content(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
  }
  [[nodiscard]] fs::path shop() const { return folder / "Projects" / "Shop" / "Shop.stp"; }
  [[nodiscard]] fs::path backup(int number) const {
    return folder / "Projects" / "Shop" / "Backup" / ("Shop.stp." + std::to_string(number));
  }

  [[nodiscard]] fs::path form(const char* name) const { return folder / "Projects" / "Shop" / "Template" / name; }

  void makeShop() {
    fs::remove_all(folder);
    put(shop(), ShopText("0"));
    for (int i = 1; i <= 10; ++i) put(backup(i), ShopText(std::to_string(i)));
    put(form("order.htm"), "order");
    put(form("confirm.htm"), "confirm");
    put(folder / "config.ini", "old");
  }

  // Loads, changes and saves the shop; what the killed process runs. Gives the operations it took.
  int save(int at, Failure failure) {
    PosixFiles disk(folder.string());
    KillingFiles files(disk, at, failure);
    FixedClock clock(5);
    FakeScreen screen;
    ProcessClipboard clipboard;
    View view;
    Program program(files, clock, screen, clipboard, view);
    program.project.projectFile.assign(std::string_view(disk.nameOf(shop().string())));
    ProjectLoad(program);
    ChangeShop(program);
    ProjectSaveNow(program);
    return files.operations();
  }

  // Whether the file holds a whole project: every byte of a saved state, old or new.
  [[nodiscard]] bool loadsInFull(const fs::path& path) const {
    const std::string text = content(path);
    return text == newText_ || text == ShopText("0");
  }

  std::string newText_;
};

TEST_P(SaveKill, TheFileOrItsNewestBackupIsWholeAtEveryPoint) {
  makeShop();
  const int points = save(0, GetParam());
  newText_ = content(shop());
  ASSERT_NE(newText_.find("NODE0=Home changed\n"), std::string::npos);
  ASSERT_TRUE(newText_.ends_with("CC=1:0\n"));

  int onlyBackup = 0;
  for (int at = 1; at <= points; ++at) {
    makeShop();
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      save(at, GetParam());
      ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "point " << at;
    const bool file = loadsInFull(shop());
    EXPECT_TRUE(file || loadsInFull(backup(1))) << "point " << at;
    if (!file) ++onlyBackup;
    EXPECT_EQ(content(form("order.htm")), "order") << "point " << at;
    EXPECT_EQ(content(form("confirm.htm")), "confirm") << "point " << at;
  }
  std::cout << points << " points of death in a save, " << onlyBackup << " of them saved by the backup\n";
  EXPECT_GT(onlyBackup, 0);
}

INSTANTIATE_TEST_SUITE_P(Process, SaveKill, testing::Values(Failure::Denied, Failure::NoSpace),
                         [](const auto& test) { return test.param == Failure::Denied ? "Before" : "HalfWay"; });

}  // namespace
}  // namespace varlo
