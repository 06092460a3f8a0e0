#include "generator/build/scheme_files.h"

#include <string>

#include <gtest/gtest.h>

#include "core/store/string_item.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

class SchemeFiles : public testing::Test {
 protected:
  TestShop t;

  void addFile(const char* file) {
    StringItem* item = StringItemInit(nullptr);
    item->text.assign(file);
    StringItem*& head = t.scheme().files;
    StringItem* last = RecordLast(head);
    RecordAppend(head, last, item);
  }
};

TEST_F(SchemeFiles, AreCopiedUnderTheirNamesInLowerCaseOverOldOnes) {
  t.files.put("C:\\Varlo\\img\\H1.GIF", "new");
  t.files.put("C:\\Web\\h1.gif", "old");
  addFile("img\\H1.GIF");
  CopySchemeFiles(t.generator, "C:\\Web");
  EXPECT_THAT(t.files.log, ElementsAre("copy C:\\Varlo\\img\\H1.GIF to c:\\web\\h1.gif"));
  EXPECT_EQ(t.site("h1.gif"), "new");
}

TEST_F(SchemeFiles, AnEntryWithoutAFolderGetsItsBackSlash) {
  t.files.put("C:\\Varlo\\a.gif", "a");
  addFile("a.gif");
  CopySchemeFiles(t.generator, "C:\\Web");
  EXPECT_EQ(t.site("a.gif"), "a");
}

TEST_F(SchemeFiles, DoubledBackSlashesOfTheTargetBecomeOne) {
  t.files.put("C:\\Varlo\\img\\a.gif", "a");
  addFile("img\\a.gif");
  CopySchemeFiles(t.generator, "C:\\\\Web\\");
  EXPECT_THAT(t.files.log, ElementsAre("copy C:\\Varlo\\img\\a.gif to c:\\web\\a.gif"));
}

TEST_F(SchemeFiles, TheyMayComeFromAnywhere) {
  t.files.put("C:\\elsewhere\\a.gif", "a");
  addFile("..\\elsewhere\\a.gif");
  CopySchemeFiles(t.generator, "C:\\Web");
  EXPECT_EQ(t.site("a.gif"), "a");
}

TEST_F(SchemeFiles, OneWhoseTargetLeadsOutOfTheSiteCannotBeCopied) {
  for (const char* entry : {"../a.gif", "../../a.gif", "img\\..", "../Varlo/../../a.gif", "/a.gif"}) addFile(entry);
  t.files.put("C:\\a.gif", "old");
  t.files.put("C:\\Varlo\\..\\..\\a.gif", "new");
  CopySchemeFiles(t.generator, "C:\\Web\\site");
  EXPECT_THAT(t.files.log, testing::IsEmpty());
  EXPECT_THAT(t.window.lines, ElementsAre("error: scheme: copying schema file '../a.gif'",
                                          "error: scheme: copying schema file '../../a.gif'",
                                          "error: scheme: copying schema file 'img\\..'",
                                          "error: scheme: copying schema file '../Varlo/../../a.gif'",
                                          "error: scheme: copying schema file '/a.gif'"));
  EXPECT_EQ(t.generator.log.errorCount, 5);
}

TEST_F(SchemeFiles, OneThatFailsIsLoggedAndTheOthersAreCopied) {
  t.files.put("C:\\Varlo\\img\\b.gif", "b");
  addFile("img\\a.gif");
  addFile("img\\b.gif");
  CopySchemeFiles(t.generator, "C:\\Web");
  EXPECT_THAT(t.window.lines, ElementsAre("error: scheme: copying schema file 'img\\a.gif'"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
  EXPECT_EQ(t.site("b.gif"), "b");
}

TEST_F(SchemeFiles, ADirectoryThatIsNotThereCountsEachFile) {
  t.files.put("C:\\Varlo\\img\\b.gif", "b");
  addFile("img\\b.gif");
  CopySchemeFiles(t.generator, "C:\\Gone");
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(SchemeFiles, WithoutASchemeNothingHappens) {
  addFile("img\\a.gif");
  t.project().projectScheme = nullptr;
  CopySchemeFiles(t.generator, "C:\\Web");
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

}  // namespace
}  // namespace varlo
