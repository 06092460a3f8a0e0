#include "core/program/project_close.h"

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "core/store/record.h"
#include "core/store/user_variable.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class ProjectCloseTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
};

TEST_F(ProjectCloseTest, WhatFollowsIsAnotherProject) {
  const std::uint32_t first = project.serial;
  ProjectClose(t.program);
  const std::uint32_t second = project.serial;
  EXPECT_NE(first, second);
  ProjectClose(t.program);
  EXPECT_NE(project.serial, second);
}

TEST_F(ProjectCloseTest, ReleasesWhatANewProjectReplaces) {
  project.webDir.assign("w");
  project.storeTitle.assign("t");
  project.tax.freightTaxRate.assign("10");
  project.projectDir.assign("d");
  project.templateNames[19].assign("x.htm");
  UserVariableAppend(project, UserVariableInit(nullptr));
  project.currentVariable = project.variables;
  AddProduct(project, "Ball", AddCategory(project, "Home"));
  Select(project, project.root);
  project.dragNode = project.dragList = project.root;
  project.acceptedCards = project.currentCard = CardEntryInit(nullptr);
  RecordAppend(project.regions, project.regionsTail, FreightRegionMake());
  project.currentRegion = project.regions;
  t.config().schemeStyles = SchemeInit(nullptr);
  project.projectScheme = t.config().currentScheme = t.config().currentStyle = t.config().schemeStyles;
  t.config().cardCatalogue = CardEntryInit(nullptr);
  t.config().cardCatalogue->selected = 1;

  ProjectClose(t.program);

  EXPECT_TRUE(project.webDir.isNull());
  EXPECT_TRUE(project.storeTitle.isNull());
  EXPECT_TRUE(project.tax.freightTaxRate.isNull());
  EXPECT_TRUE(project.projectDir.isNull());
  EXPECT_TRUE(project.templateNames[19].isNull());
  EXPECT_EQ(project.variables, nullptr);
  EXPECT_EQ(project.variablesTail, nullptr);
  EXPECT_EQ(project.currentVariable, nullptr);
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.currentNode, nullptr);
  EXPECT_EQ(project.treeNode, nullptr);
  EXPECT_EQ(project.nodes.size(), 0U);
  EXPECT_EQ(project.acceptedCards, nullptr);
  EXPECT_EQ(project.currentCard, nullptr);
  EXPECT_EQ(project.regions, nullptr);
  EXPECT_EQ(project.regionsTail, nullptr);
  EXPECT_EQ(project.currentRegion, nullptr);
  EXPECT_EQ(project.projectScheme, nullptr);
  EXPECT_EQ(t.config().currentScheme, nullptr);
  EXPECT_EQ(t.config().currentStyle, nullptr);
  EXPECT_NE(t.config().schemeStyles, nullptr);
  EXPECT_EQ(t.config().cardCatalogue->selected, 0);
  ExpectSoundTree(project);
}

TEST_F(ProjectCloseTest, LeavesWhatANewProjectInherits) {
  project.projectFile.assign("C:\\a.stp");
  project.orderTemplate.assign("o");
  project.confirmTemplate.assign("c");
  project.orderMessage.assign("om");
  project.confirmMessage.assign("cm");
  project.currency.assign("EUR");
  project.tax.taxEnabled = project.tax.taxOption = 1;
  project.methodName[2].assign("m");
  project.dirty = 1;
  project.currentNode = AddCategory(project, "Home");
  project.clipboardNode = std::make_unique<StoreNode>();
  project.clipboardNode->title.assign("copy");

  ProjectClose(t.program);

  EXPECT_STREQ(project.projectFile.get(), "C:\\a.stp");
  EXPECT_STREQ(project.orderTemplate.get(), "o");
  EXPECT_STREQ(project.confirmTemplate.get(), "c");
  EXPECT_STREQ(project.orderMessage.get(), "om");
  EXPECT_STREQ(project.confirmMessage.get(), "cm");
  EXPECT_STREQ(project.currency.get(), "EUR");
  EXPECT_EQ(project.tax.taxEnabled, 1);
  EXPECT_EQ(project.tax.taxOption, 1);
  EXPECT_STREQ(project.methodName[2].get(), "m");
  EXPECT_EQ(project.dirty, 1);
  ASSERT_NE(project.clipboardNode, nullptr);
  EXPECT_STREQ(project.clipboardNode->title.get(), "copy");
}

TEST_F(ProjectCloseTest, EmptiesTheTreeOnTheScreen) {
  ProjectClose(t.program);
  EXPECT_EQ(t.view.calls.front(), "clearTree");
}

}  // namespace
}  // namespace varlo
