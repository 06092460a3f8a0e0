#include "core/program/text_slot.h"

#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "core/text/limits.h"
#include "core/text/memory.h"
#include "core/text/open_file.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

constexpr int kSlot = 3;
constexpr const char* kFile = "C:\\Varlo\\template\\page.dat";

class FileReadToSlotTest : public testing::Test {
 protected:
  int readFile(std::string_view content, bool skipComments = false) {
    fakes_.files.put(kFile, content);
    return FileReadToSlot(fakes_.program, kSlot, kFile, skipComments);
  }
  TextSlot& slot() { return fakes_.program.slots[kSlot]; }

  test::TestProgram fakes_;
};

TEST_F(FileReadToSlotTest, TakesTheWholeFileWithItsLineEnds) {
  EXPECT_EQ(readFile("a\r\nb\n\n  c "), 1);
  EXPECT_STREQ(slot().text(), "a\r\nb\n\n  c ");
  EXPECT_EQ(slot().length(), 10U);
}

TEST_F(FileReadToSlotTest, TheFirstUseAllocates5000Bytes) {
  EXPECT_FALSE(slot().hasMemory());
  EXPECT_STREQ(slot().text(), "");
  readFile("a");
  EXPECT_TRUE(slot().hasMemory());
  EXPECT_EQ(slot().capacity(), 5000U);
}

TEST_F(FileReadToSlotTest, FillsTheSlotThatIsAskedForOnly) {
  readFile("a");
  for (std::size_t other = 0; other < kTextSlots; ++other) {
    EXPECT_EQ(fakes_.program.slots[other].hasMemory(), other == kSlot) << other;
  }
}

TEST_F(FileReadToSlotTest, GrowsBy40000WhenLengthAndLineAnd10ExceedTheCapacity) {
  readFile(std::string(4990, 'x'));
  EXPECT_EQ(slot().capacity(), 5000U);
  readFile(std::string(4991, 'x'));
  EXPECT_EQ(slot().capacity(), 45000U);
  EXPECT_EQ(slot().length(), 4991U);
}

TEST_F(FileReadToSlotTest, TakesAFileOfAnySize) {
  std::string content;
  for (int line = 0; line < 20000; ++line) content += "line " + std::to_string(line) + "\r\n";
  EXPECT_EQ(readFile(content), 1);
  EXPECT_TRUE(slot().text() == content);
  EXPECT_EQ(slot().length(), content.size());
  EXPECT_EQ((slot().capacity() - 5000) % 40000, 0U);
  EXPECT_GE(slot().capacity(), content.size() + 10);
}

TEST_F(FileReadToSlotTest, ACutLineJoinsAgain) {
  const std::string content = std::string(60000, 'x') + "\nend";
  readFile(content);
  EXPECT_TRUE(slot().text() == content);
}

TEST_F(FileReadToSlotTest, AnotherFileReplacesTheText) {
  readFile("the longer text of the first file\n");
  EXPECT_EQ(readFile("short"), 1);
  EXPECT_STREQ(slot().text(), "short");
  EXPECT_EQ(slot().length(), 5U);
}

TEST_F(FileReadToSlotTest, SkipsCommentsWhenAsked) {
  EXPECT_EQ(readFile(";head\r\na;b\r\n ;c\n;\n;last", true), 1);
  EXPECT_STREQ(slot().text(), "a;b\r\n ;c\n");
}

TEST_F(FileReadToSlotTest, KeepsCommentsOtherwise) {
  readFile(";head\r\na\n", false);
  EXPECT_STREQ(slot().text(), ";head\r\na\n");
}

TEST_F(FileReadToSlotTest, TheRestOfACutLineCanLookLikeAComment) {
  readFile(std::string(kLineCut, 'x') + ";not a comment\nend", true);
  EXPECT_TRUE(slot().text() == std::string(kLineCut, 'x') + "end");
}

TEST_F(FileReadToSlotTest, AMissingFileKeepsTheFormerText) {
  readFile("former");
  EXPECT_EQ(FileReadToSlot(fakes_.program, kSlot, "C:\\Varlo\\missing.dat", false), 0);
  EXPECT_STREQ(slot().text(), "former");
  EXPECT_EQ(slot().length(), 0U);
}

TEST_F(FileReadToSlotTest, AMissingFileLeavesANewSlotWithAnEmptyText) {
  EXPECT_EQ(FileReadToSlot(fakes_.program, kSlot, "C:\\Varlo\\missing.dat", false), 0);
  EXPECT_TRUE(slot().hasMemory());
  EXPECT_STREQ(slot().text(), "");
}

TEST_F(FileReadToSlotTest, AFileWithoutALineKeepsTheFormerText) {
  readFile("former");
  EXPECT_EQ(readFile(""), 1);
  EXPECT_STREQ(slot().text(), "former");
  EXPECT_EQ(slot().length(), 0U);
  EXPECT_EQ(readFile(";nothing but\n;comments\n", true), 1);
  EXPECT_STREQ(slot().text(), "former");
}

TEST_F(FileReadToSlotTest, TheTextEndsAtTheFirstNul) {
  readFile(std::string_view("ab\0cd\nef\n", 9));
  EXPECT_STREQ(slot().text(), "ab");
  EXPECT_EQ(slot().length(), 9U);
}

TEST_F(FileReadToSlotTest, DropsANulAtTheStartOfALine) {
  readFile(std::string_view("\0ab\n\0cd\n", 8));
  EXPECT_STREQ(slot().text(), "ab\ncd\n");
}

TEST_F(FileReadToSlotTest, ClosesTheFile) {
  readFile("a\n");
  FileReadToSlot(fakes_.program, kSlot, "C:\\Varlo\\missing.dat", false);
  EXPECT_EQ(fakes_.files.openHandles(), 0U);
}

TEST_F(FileReadToSlotTest, ReleaseGivesTheMemoryBackAndTheSlotStartsAnew) {
  readFile(std::string(9000, 'x'));
  slot().release();
  EXPECT_FALSE(slot().hasMemory());
  EXPECT_STREQ(slot().text(), "");
  EXPECT_EQ(slot().length(), 0U);
  EXPECT_EQ(slot().capacity(), 0U);
  EXPECT_EQ(readFile("again"), 1);
  EXPECT_STREQ(slot().text(), "again");
  EXPECT_EQ(slot().capacity(), 5000U);
}

TEST(MemResize, Size0GivesNull) { EXPECT_EQ(MemResize(nullptr, 0), nullptr); }

TEST(MemResize, GivesAByteMoreThanAsked) {
  auto* block = static_cast<char*>(MemResize(nullptr, 10));
  ASSERT_NE(block, nullptr);
  std::memset(block, 'x', 11);
  EXPECT_EQ(std::string(block, 11), std::string(11, 'x'));
  MemFree(block);
}

TEST(MemResize, KeepsTheContentOfAResizedBlock) {
  auto* block = static_cast<char*>(MemResize(nullptr, 5));
  ASSERT_NE(block, nullptr);
  std::memcpy(block, "texts", 6);
  block = static_cast<char*>(MemResize(block, 100000));
  ASSERT_NE(block, nullptr);
  EXPECT_STREQ(block, "texts");
  std::memset(block, 'y', 100001);
  block = static_cast<char*>(MemResize(block, 2));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::string(block, 3), "yyy");
  MemFree(block);
}

TEST(MemResize, Size0LeavesTheBlockToItsOwner) {
  auto* block = static_cast<char*>(MemResize(nullptr, 4));
  ASSERT_NE(block, nullptr);
  std::memcpy(block, "here", 5);
  EXPECT_EQ(MemResize(block, 0), nullptr);
  EXPECT_STREQ(block, "here");
  MemFree(block);
}

TEST(MemFree, DoesNothingOnNull) {
  MemFree(nullptr);
  SUCCEED();
}

TEST(FileExists, IsOneForAFileThatCanBeOpened) {
  test::FakeFiles files;
  files.put("C:\\Varlo\\scheme.dat", "");
  EXPECT_EQ(FileExists(files, "C:\\Varlo\\scheme.dat"), 1);
  EXPECT_EQ(FileExists(files, "c:\\varlo\\SCHEME.DAT"), 1);
  EXPECT_EQ(FileExists(files, "C:\\Varlo\\scheme.ini"), 0);
  EXPECT_EQ(FileExists(files, "C:\\Varlo"), 0);
  EXPECT_EQ(files.openHandles(), 0U);
}

TEST(OpenFile, ClosesItsHandleOnce) {
  test::FakeFiles files;
  files.put("C:\\Varlo\\a.txt", "");
  {
    OpenFile file(files, files.openRead("a.txt"));
    EXPECT_TRUE(file.isOpen());
    EXPECT_EQ(files.openHandles(), 1U);
    file.close();
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(file.handle(), kNoFile);
    EXPECT_EQ(files.openHandles(), 0U);
  }
  {
    const OpenFile file(files, files.openRead("a.txt"));
    EXPECT_EQ(files.openHandles(), 1U);
  }
  EXPECT_EQ(files.openHandles(), 0U);
  EXPECT_FALSE(OpenFile(files, kNoFile).isOpen());
}

}  // namespace
}  // namespace varlo
