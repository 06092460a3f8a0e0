#include "win32/win32_files.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "core/text/open_file.h"
#include "win32/win32_clipboard.h"
#include "win32/win32_clock.h"

namespace varlo {
namespace {

class Win32FilesTest : public testing::Test {
 protected:
  Win32Files files;
  std::string folder;

  void SetUp() override {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    const auto path = std::filesystem::temp_directory_path() / ("varlo_files_" + std::string(info->name()));
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
    folder = path.string();
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  std::string at(std::string_view name) { return folder + "\\" + std::string(name); }
  void put(std::string_view name, std::string_view content) {
    OpenFile file(files, files.create(at(name)));
    ASSERT_TRUE(file.isOpen());
    ASSERT_EQ(files.write(file.handle(), content.data(), content.size()), content.size());
  }
  std::string content(std::string_view name) {
    OpenFile file(files, files.openRead(at(name)));
    if (!file.isOpen()) return "(none)";
    std::string text(100, '\0');
    text.resize(files.read(file.handle(), text.data(), text.size()));
    return text;
  }
};

TEST_F(Win32FilesTest, WritesAndReadsBytesAsTheyAre) {
  put("a.txt", "x\ny\r\n\x1a\xe9");
  EXPECT_EQ(content("A.TXT"), "x\ny\r\n\x1a\xe9");
}

TEST_F(Win32FilesTest, NamesAboveAsciiRoundTrip) {
  put("caf\xe9.txt", "x");
  EXPECT_EQ(content("caf\xe9.txt"), "x");
  ASSERT_EQ(files.search(at("*.txt")).size(), 1U);
  EXPECT_EQ(files.search(at("*.txt"))[0].name, "caf\xe9.txt");
}

TEST_F(Win32FilesTest, SeeksFromStartCurrentAndEnd) {
  put("a.txt", "0123456789");
  OpenFile file(files, files.openRead(at("a.txt")));
  EXPECT_EQ(files.seek(file.handle(), 3, SeekFrom::Start), 3);
  EXPECT_EQ(files.seek(file.handle(), 2, SeekFrom::Current), 5);
  EXPECT_EQ(files.seek(file.handle(), -1, SeekFrom::End), 9);
  EXPECT_EQ(files.seek(file.handle(), -1, SeekFrom::Start), -1);
}

TEST_F(Win32FilesTest, MissingFilesFoldersAndBadPlacesFail) {
  EXPECT_EQ(files.openRead(at("none")), kNoFile);
  EXPECT_FALSE(files.errorText().empty());
  EXPECT_EQ(files.openRead(folder), kNoFile);
  EXPECT_EQ(files.create(at("none\\a.txt")), kNoFile);
  EXPECT_FALSE(files.remove(at("none")));
}

TEST_F(Win32FilesTest, CopiesOverOrRefusesAnExistingTarget) {
  put("a.txt", "a");
  put("b.txt", "b");
  EXPECT_FALSE(files.copy(at("a.txt"), at("b.txt"), false));
  EXPECT_EQ(content("b.txt"), "b");
  EXPECT_TRUE(files.copy(at("a.txt"), at("b.txt"), true));
  EXPECT_EQ(content("b.txt"), "a");
  EXPECT_FALSE(files.copy(at("a.txt"), at("A.TXT"), true));
  EXPECT_EQ(content("a.txt"), "a");
}

TEST_F(Win32FilesTest, MovesOnlyOntoAFreeName) {
  put("a.txt", "a");
  put("b.txt", "b");
  EXPECT_FALSE(files.move(at("a.txt"), at("b.txt")));
  EXPECT_TRUE(files.remove(at("b.txt")));
  EXPECT_TRUE(files.move(at("a.txt"), at("b.txt")));
  EXPECT_EQ(content("b.txt"), "a");
  EXPECT_EQ(content("a.txt"), "(none)");
}

TEST_F(Win32FilesTest, MakesFoldersAndTellsThoseThatExist) {
  EXPECT_EQ(files.makeFolder(at("f")), MakeFolderResult::Made);
  EXPECT_EQ(files.makeFolder(at("F")), MakeFolderResult::Exists);
  EXPECT_EQ(files.makeFolder(at("g\\h")), MakeFolderResult::Failed);
}

TEST_F(Win32FilesTest, SearchIsSortedByNameAndLeavesDotsOut) {
  put("b.stp.10", "12345");
  put("B.stp.2", "");
  files.makeFolder(at("a"));
  const std::vector<FoundFile> found = files.search(at("*.*"));
  ASSERT_EQ(found.size(), 3U);
  EXPECT_EQ(found[0].name, "a");
  EXPECT_TRUE(found[0].isFolder);
  EXPECT_EQ(found[1].name, "b.stp.10");
  EXPECT_EQ(found[1].size, 5U);
  EXPECT_EQ(found[2].name, "B.stp.2");
}

TEST_F(Win32FilesTest, NamesAreFullAndTheWorkingFolderHasNoSlashAtItsEnd) {
  EXPECT_EQ(files.nameOf(folder + "/x/../a.txt"), at("a.txt"));
  EXPECT_FALSE(files.workingFolder().ends_with('\\'));
}

TEST(Win32Clipboard, KeepsAText) {
  Win32Clipboard clipboard;
  ASSERT_TRUE(clipboard.putText("one\r\ntwo \xe9"));
  EXPECT_EQ(clipboard.text(), "one\r\ntwo \xe9");
}

TEST(Win32Clock, RefusesANegativeTimeAndTellsTheYear) {
  Win32Clock clock;
  CalendarTime local;
  EXPECT_FALSE(clock.localTime(-1, local));
  ASSERT_TRUE(clock.localTime(1044072306, local));
  EXPECT_EQ(local.year, 2003);
  EXPECT_GT(clock.now(), 1600000000);
}

}  // namespace
}  // namespace varlo
