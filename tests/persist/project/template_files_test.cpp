#include "persist/project/template_files.h"

#include <gtest/gtest.h>

#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class TemplateFilesTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  // A project whose two forms stand on the disk as they are in memory.
  void openWithForms() {
    t.files.put("Projects\\Shop\\Template\\order.htm", "order");
    t.files.put("Projects\\Shop\\Template\\confirm.htm", "confirm");
    LoadCurrent(t, "NODE0=Home\n");
    t.files.log.clear();
  }
  std::string form(const char* name) {
    return t.files.content(std::string("Projects\\Shop\\Template\\") + name).value_or("(none)");
  }
};

TEST_F(TemplateFilesTest, FormTemplatesAreWrittenWhenTheyAndTheFolderAreKnown) {
  project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  project.orderTemplate.assign("order");
  project.confirmTemplate.assign("");
  SaveText(t);
  EXPECT_EQ(t.files.content("Projects\\Shop\\Template\\order.htm"), "order");
  EXPECT_EQ(t.files.content("Projects\\Shop\\Template\\confirm.htm"), "");
}

TEST_F(TemplateFilesTest, WithoutAFolderTheFormTemplatesStay) {
  project.orderTemplate.assign("order");
  SaveText(t);
  EXPECT_EQ(t.files.names(), std::vector<std::string>{kProjectPath});
}

TEST_F(TemplateFilesTest, AFormTemplateThatCannotBeWrittenIsToldAndTheSaveGoesOn) {
  project.dirty = 1;
  project.projectDir.assign("C:\\gone");
  project.orderTemplate.assign("order");
  SaveText(t);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, "ERROR R106: Unable to open HTML output file");
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(TemplateFilesTest, TemplateSaveFileReducesDoubledBackSlashes) {
  EXPECT_EQ(TemplateSaveFile(t.program, "C:\\\\Varlo\\\\\\a.htm", "x"), PageSave::Done);
  EXPECT_EQ(t.files.log, (std::vector<std::string>{"remove C:\\Varlo\\a.htm", "create C:\\Varlo\\a.htm",
                                                   "write C:\\Varlo\\a.htm"}));
}

TEST_F(TemplateFilesTest, TemplateSaveGoesToTheNodesTemplateOrTheDefaultOfItsKind) {
  project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Template");
  StoreNode* node = AddNode(project, NodeKind::Shelf, "s");
  EXPECT_TRUE(TemplateSave(t.program, *node, "a"));
  EXPECT_EQ(t.files.content("Projects\\Shop\\Template\\shelf.htm"), "a");
  node->templateName.assign("");
  EXPECT_TRUE(TemplateSave(t.program, *node, "b"));
  EXPECT_EQ(t.files.content("Projects\\Shop\\Template\\shelf.htm"), "b");
  node->templateName.assign("own.htm");
  EXPECT_TRUE(TemplateSave(t.program, *node, "c"));
  EXPECT_EQ(t.files.content("Projects\\Shop\\Template\\own.htm"), "c");
}

TEST_F(TemplateFilesTest, TemplateSaveThatFailsHasItsOwnMessage) {
  project.projectDir.assign("C:\\gone");
  EXPECT_FALSE(TemplateSave(t.program, *AddProduct(project, "p"), "a"));
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, "ERROR S104: Saving template file");
}

TEST_F(TemplateFilesTest, FormTemplatesThatDidNotChangeStayUntouched) {
  openWithForms();
  EXPECT_TRUE(FormTemplatesSave(t.program));
  EXPECT_TRUE(t.files.log.empty());
}

TEST_F(TemplateFilesTest, OnlyTheFormThatDiffersIsWritten) {
  openWithForms();
  project.confirmTemplate.assign("confirmed");
  EXPECT_TRUE(FormTemplatesSave(t.program));
  EXPECT_EQ(form("confirm.htm"), "confirmed");
  for (const std::string& operation : t.files.log)
    EXPECT_EQ(operation.find("order.htm"), std::string::npos) << operation;
}

TEST_F(TemplateFilesTest, AFormThatDiffersInItsEndOrLengthAloneIsWritten) {
  const std::string text(10000, 'x');
  for (const std::string& changed : {text.substr(1), text + "y", text.substr(1) + "y", std::string()}) {
    openWithForms();
    t.files.put("Projects\\Shop\\Template\\order.htm", text);
    project.orderTemplate.assign(std::string_view(changed));
    EXPECT_TRUE(FormTemplatesSave(t.program));
    EXPECT_EQ(form("order.htm"), changed);
  }
}

TEST_F(TemplateFilesTest, AnEmptyFormIsWrittenOnce) {
  openWithForms();
  t.files.put("Projects\\Shop\\Template\\order.htm", "");
  project.orderTemplate.assign("");
  EXPECT_TRUE(FormTemplatesSave(t.program));
  EXPECT_TRUE(t.files.log.empty());
  t.files.remove("Projects\\Shop\\Template\\order.htm");
  EXPECT_TRUE(FormTemplatesSave(t.program));
  EXPECT_EQ(form("order.htm"), "");
}

TEST_F(TemplateFilesTest, AFormThatLosesItsEndIsToldAndLeavesTheProjectDirty) {
  openWithForms();
  project.orderTemplate.assign("changed");
  t.files.shallFail = [](const std::string& operation) {
    return operation.starts_with("write") && operation.ends_with("order.htm");
  };
  EXPECT_FALSE(ProjectSave(t.program));
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(
      t.screen.boxes[0].text,
      "The file 'C:\\Varlo\\Projects\\Shop\\template\\order.htm' could not be written completely.  The disk may "
      "be full: please make room and save again.");
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(TemplateFilesTest, ATemplateThatLeadsOutOfItsFolderFailsAsOneThatCanNotBeWritten) {
  openWithForms();
  StoreNode* node = AddProduct(project, "p");
  for (const char* name : {"..\\Shop.stp", "..\\..\\..\\config.ini", "C:\\a.htm", "/a.htm"}) {
    node->templateName.assign(name);
    t.screen.boxes.clear();
    EXPECT_FALSE(TemplateSave(t.program, *node, "a")) << name;
    ASSERT_EQ(t.screen.boxes.size(), 1U);
    EXPECT_EQ(t.screen.boxes[0].text, "ERROR S104: Saving template file");
    EXPECT_TRUE(t.files.log.empty()) << name;
  }
}

}  // namespace
}  // namespace varlo
