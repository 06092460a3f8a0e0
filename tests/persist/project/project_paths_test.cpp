#include "persist/project/project_paths.h"

#include <gtest/gtest.h>

#include "core/store/store_node.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

TEST(NodeTemplatePath, IsThatOfTheNodesTemplateElseOfItsKind) {
  StoreProject project;
  project.projectDir.assign("C:\\shop");
  StoreNode node;
  for (const auto& [kind, path] : {std::pair(NodeKind::Category, "C:\\shop\\template\\category.htm"),
                                   std::pair(NodeKind::Product, "C:\\shop\\template\\product.htm"),
                                   std::pair(NodeKind::Shelf, "C:\\shop\\template\\shelf.htm"),
                                   std::pair(NodeKind::List, "C:\\shop\\template\\list.htm")}) {
    node.kind = kind;
    node.templateName.release();
    EXPECT_EQ(NodeTemplatePath(project, node), path);
    node.templateName.assign("");
    EXPECT_EQ(NodeTemplatePath(project, node), path);
    node.templateName.assign("own.htm");
    EXPECT_EQ(NodeTemplatePath(project, node), "C:\\shop\\template\\own.htm");
  }
}

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
