#include "posix/folder_index.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace varlo {
namespace {

namespace fs = std::filesystem;

class FolderIndexTest : public testing::Test {
 protected:
  FolderIndexTest() : folder_((fs::temp_directory_path() / "folder_index_XXXXXX").string()) {
    if (::mkdtemp(folder_.data()) == nullptr) throw std::runtime_error("no temporary folder");
  }
  ~FolderIndexTest() override { fs::remove_all(folder_); }

  void put(const std::string& name) const { std::ofstream(folder_ + "/" + name).put('x'); }
  // Makes the last change an old one, so that the next change shows at any resolution of the clock.
  void age() const { fs::last_write_time(folder_, fs::file_time_type::clock::now() - std::chrono::hours(1)); }
  std::string find(std::string_view name) { return index_.find(folder_, name); }

  std::string folder_;
  FolderIndex index_;
};

using FolderIndexFind = FolderIndexTest;
using FolderIndexAdded = FolderIndexTest;
using FolderIndexRemoved = FolderIndexTest;

TEST_F(FolderIndexFind, GivesTheSpellingOnDisk) {
  put("Index.HTML");
  EXPECT_EQ(find("index.html"), "Index.HTML");
  EXPECT_EQ(find("INDEX.HTML"), "Index.HTML");
  EXPECT_EQ(find("Index.HTML"), "Index.HTML");
}

TEST_F(FolderIndexFind, IsEmptyWhenThereIsNone) {
  put("Index.HTML");
  EXPECT_EQ(find("index.htm"), "");
  EXPECT_EQ(find(""), "");
}

TEST_F(FolderIndexFind, FindsFoldersToo) {
  fs::create_directory(folder_ + "/Web");
  EXPECT_EQ(find("WEB"), "Web");
}

TEST_F(FolderIndexFind, TurnsUtf8OnDiskIntoTheProgramsBytes) {
  put("Caf\xC3\xA9.htm");
  EXPECT_EQ(find("caf\xE9.htm"), "Caf\xC3\xA9.htm");
  EXPECT_EQ(find("CAF\xC9.HTM"), "Caf\xC3\xA9.htm");
}

TEST_F(FolderIndexFind, AMissingFolderHasNothing) {
  EXPECT_EQ(index_.find(folder_ + "/later", "a.txt"), "");
  fs::create_directory(folder_ + "/later");
  std::ofstream(folder_ + "/later/A.txt").put('x');
  EXPECT_EQ(index_.find(folder_ + "/later", "a.txt"), "A.txt");
}

TEST_F(FolderIndexFind, AFileIsNoFolder) {
  put("a.txt");
  EXPECT_EQ(index_.find(folder_ + "/a.txt", "b"), "");
}

TEST_F(FolderIndexFind, KeepsFoldersApart) {
  fs::create_directory(folder_ + "/one");
  fs::create_directory(folder_ + "/two");
  std::ofstream(folder_ + "/one/A.txt").put('x');
  std::ofstream(folder_ + "/two/a.TXT").put('x');
  EXPECT_EQ(index_.find(folder_ + "/one", "a.txt"), "A.txt");
  EXPECT_EQ(index_.find(folder_ + "/two", "a.txt"), "a.TXT");
}

TEST_F(FolderIndexFind, SeesWhatOthersMadeAndRemoved) {
  put("First.txt");
  age();
  EXPECT_EQ(find("first.txt"), "First.txt");
  EXPECT_EQ(find("second.txt"), "");
  put("Second.txt");
  EXPECT_EQ(find("second.txt"), "Second.txt");
  age();
  EXPECT_EQ(find("first.txt"), "First.txt");
  fs::remove(folder_ + "/First.txt");
  EXPECT_EQ(find("first.txt"), "");
  EXPECT_EQ(find("second.txt"), "Second.txt");
}

TEST_F(FolderIndexAdded, ANewNameIsFound) {
  EXPECT_EQ(find("new.txt"), "");
  put("New.txt");
  index_.added(folder_, "New.txt");
  EXPECT_EQ(find("new.txt"), "New.txt");
}

TEST_F(FolderIndexAdded, AnUnknownFolderIsReadWhenItIsAskedFor) {
  put("Old.txt");
  put("New.txt");
  index_.added(folder_, "New.txt");
  EXPECT_EQ(find("old.txt"), "Old.txt");
  EXPECT_EQ(find("new.txt"), "New.txt");
}

TEST_F(FolderIndexAdded, ANameAboveSevenBitsIsFound) {
  EXPECT_EQ(find("\xE9.txt"), "");
  put("\xC3\x89.txt");
  index_.added(folder_, "\xC3\x89.txt");
  EXPECT_EQ(find("\xE9.txt"), "\xC3\x89.txt");
}

TEST_F(FolderIndexRemoved, ARemovedNameIsNotFound) {
  put("Old.txt");
  put("Other.txt");
  EXPECT_EQ(find("old.txt"), "Old.txt");
  fs::remove(folder_ + "/Old.txt");
  index_.removed(folder_, "Old.txt");
  EXPECT_EQ(find("old.txt"), "");
  EXPECT_EQ(find("other.txt"), "Other.txt");
}

TEST_F(FolderIndexRemoved, TheNameIsFreeForAnotherSpelling) {
  put("Old.txt");
  EXPECT_EQ(find("old.txt"), "Old.txt");
  fs::remove(folder_ + "/Old.txt");
  index_.removed(folder_, "Old.txt");
  put("OLD.txt");
  index_.added(folder_, "OLD.txt");
  EXPECT_EQ(find("old.txt"), "OLD.txt");
}

TEST_F(FolderIndexRemoved, AnUnknownFolderIsNoMatter) {
  index_.removed(folder_, "Old.txt");
  put("Old.txt");
  EXPECT_EQ(find("old.txt"), "Old.txt");
}

}  // namespace
}  // namespace varlo
