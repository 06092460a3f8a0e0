#include "persist/project/project_paths.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace varlo {
namespace {

TEST(ProjectDirFromFile, IsThePathUpToItsLastBackSlash) {
  test::TestProgram t;
  t.project().projectFile.assign("C:\\shop\\a.stp");
  ProjectDirFromFile(t.project());
  EXPECT_EQ(t.project().projectDir.view(), "C:\\shop");
}

TEST(ProjectDirFromFile, WithoutABackSlashIsTheWholeName) {
  test::TestProgram t;
  t.project().projectFile.assign("a.stp");
  ProjectDirFromFile(t.project());
  EXPECT_EQ(t.project().projectDir.view(), "a.stp");
}

TEST(ProjectTemplatePath, NamesAFileInTheFolderOrBelow) {
  test::TestProgram t;
  t.project().projectDir.assign("C:\\Varlo\\Projects\\Shop");
  EXPECT_EQ(ProjectTemplatePath(t.project(), "own.htm"), "C:\\Varlo\\Projects\\Shop\\template\\own.htm");
  EXPECT_EQ(ProjectTemplatePath(t.project(), "a\\own.htm"), "C:\\Varlo\\Projects\\Shop\\template\\a\\own.htm");
}

TEST(ProjectTemplatePath, ANameThatLeadsOutHasNone) {
  test::TestProgram t;
  t.project().projectDir.assign("C:\\Varlo\\Projects\\Shop");
  for (const char* name : {"..\\Shop.stp", "a/../../b.htm", "D:\\own.htm", "\\own.htm"}) {
    EXPECT_FALSE(ProjectTemplatePath(t.project(), name).has_value()) << name;
  }
}

}  // namespace
}  // namespace varlo
