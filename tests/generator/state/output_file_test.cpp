#include "generator/state/output_file.h"

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

TEST(OutputFile, AFileLiesInTheWebDirectory) {
  TestShop t;
  EXPECT_EQ(OutputPath(t.project(), "a.htm"), "C:\\Web\\a.htm");
}

TEST(OutputFile, WithoutAWebDirectoryItLiesBelowTheProject) {
  TestShop t;
  t.project().webDir.release();
  EXPECT_EQ(OutputPath(t.project(), "a.htm"), "C:\\Varlo\\Projects\\Shop\\web\\a.htm");
  t.project().webDir.assign("");
  EXPECT_EQ(OutputPath(t.project(), "a.htm"), "C:\\Varlo\\Projects\\Shop\\web\\a.htm") << "an empty one is none";
}

TEST(OutputFile, TheOldFileIsDeletedFirst) {
  TestShop t;
  t.files.put("C:\\Web\\a.htm", "a much longer old text");
  EXPECT_EQ(WriteGeneratedFile(t.program, "C:\\Web\\a.htm", "new"), 1);
  EXPECT_EQ(t.site("a.htm"), "new");
  EXPECT_THAT(t.files.log,
              ElementsAre("remove C:\\Web\\a.htm", "create C:\\Web\\a.htm", testing::StartsWith("write")));
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST(OutputFile, DoubledBackSlashesOfThePathBecomeOne) {
  TestShop t;
  EXPECT_EQ(WriteGeneratedFile(t.program, "C:\\\\Web\\\\\\a.htm", "new"), 1);
  EXPECT_EQ(t.site("a.htm"), "new");
  EXPECT_EQ(t.files.log[1], "create C:\\Web\\a.htm");
}

TEST(OutputFile, AFileThatCannotBeCreatedIsTold) {
  TestShop t;
  t.files.shallFail = [](const std::string& operation) { return operation.starts_with("create"); };
  EXPECT_EQ(WriteGeneratedFile(t.program, "C:\\Web\\a.htm", "new"), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(ShownBox{"ERROR R106: Unable to open HTML output file", "Error"}));
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

TEST(OutputFile, AnEmptyTextMakesAnEmptyFile) {
  TestShop t;
  EXPECT_EQ(WriteGeneratedFile(t.program, "C:\\Web\\a.htm", ""), 1);
  EXPECT_EQ(t.site("a.htm"), "");
}

}  // namespace
}  // namespace varlo
