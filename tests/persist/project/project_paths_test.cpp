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

}  // namespace
}  // namespace varlo
