#include "persist/project/project_merge.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "core/store/user_variable.h"
#include "core/tree/node_commands.h"
#include "platform/files_wrapper.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kShop = "C:\\Varlo\\Projects\\Shop";
const std::string kOther = "C:\\Varlo\\Projects\\Other";
const std::string kOtherPath = kOther + "\\Other.stp";

// The open project of most tests: Home(Toys(Ball,Car),Books).
constexpr const char* kShopTree =
    "NODE0=Home\n#BRANCH\nNODE0=Toys\n#BRANCH\nNODE1=Ball\nNODE1=Car\n#EOB\nNODE0=Books\n#EOB\n";
// What is merged in most tests: A(a),B,c, where c is a product.
constexpr const char* kOtherTree = "NODE0=A\n#BRANCH\nNODE1=a\n#EOB\nNODE0=B\nNODE1=c\n";

ShownBox readError(const std::string& path) { return {"S105: Unable to read project file '" + path + "'", "Error"}; }

// The nodes of the tree, chains included, in its order.
std::vector<StoreNode*> allNodes(const StoreProject& project) {
  std::vector<StoreNode*> nodes;
  TreeWalk walk(project.root, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node) nodes.push_back(walk.node());
  }
  return nodes;
}

std::vector<std::string> sortedTitles(const StoreProject& project) {
  std::vector<std::string> titles;
  for (const StoreNode* node : allNodes(project)) titles.emplace_back(node->title.orEmpty());
  std::sort(titles.begin(), titles.end());
  return titles;
}

StoreNode* find(const StoreProject& project, std::string_view title) {
  for (StoreNode* node : allNodes(project)) {
    if (node->title.view() == title) return node;
  }
  ADD_FAILURE() << "no node " << title;
  return nullptr;
}

// The open project, and another one beside it.
struct TwoProjects : TestProgram {
  TwoProjects() {
    LoadCurrent(*this, kShopTree);
    forgetRecords();
  }
  void forgetRecords() {
    view.calls.clear();
    files.log.clear();
  }
  void open(std::string_view text) {
    LoadCurrent(*this, text);
    forgetRecords();
  }
  void select(std::string_view title) { Select(project(), find(project(), title)); }
  // Merges a project with this text behind the node of that title.
  int merge(std::string_view title, std::string_view text) {
    select(title);
    files.put(kOtherPath, text);
    return ProjectMerge(program, kOtherPath.c_str());
  }
  int import(std::string_view text) {
    files.put(kOtherPath, text);
    return FreightImport(program, kOtherPath.c_str());
  }
};

class ProjectMergeTest : public testing::Test {
 protected:
  TwoProjects t;
  StoreProject& project = t.project();

  StoreNode* node(std::string_view title) { return find(project, title); }
  static std::string inShop(std::string_view name) { return kShop + "\\Template\\" + std::string(name); }
  static std::string inOther(std::string_view name) { return kOther + "\\Template\\" + std::string(name); }
  static std::string copyOf(std::string_view name) { return "copy " + inOther(name) + " to " + inShop(name); }
  std::string content(const std::string& path) { return t.files.content(path).value_or("(none)"); }
  void expectUnchanged() {
    EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books)");
    EXPECT_EQ(project.dirty, 0);
    EXPECT_THAT(t.view.calls, IsEmpty());
    EXPECT_THAT(t.files.log, IsEmpty());
    ExpectPlainTree(project);
  }
};

TEST_F(ProjectMergeTest, ANullPathGivesZero) {
  EXPECT_EQ(ProjectMerge(t.program, nullptr), 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  expectUnchanged();
}

TEST_F(ProjectMergeTest, NothingCurrentInAStoreThatIsNotEmptyGivesZeroWithoutAMessage) {
  t.files.put(kOtherPath, kOtherTree);
  project.currentNode = nullptr;
  EXPECT_EQ(ProjectMerge(t.program, kOtherPath.c_str()), 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  expectUnchanged();
}

TEST_F(ProjectMergeTest, AFileThatCanNotBeOpenedIsTold) {
  EXPECT_EQ(ProjectMerge(t.program, "C:\\gone.stp"), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp")));
  expectUnchanged();
}

TEST_F(ProjectMergeTest, AMissingFileIsToldInAnEmptyStoreToo) {
  t.open("");
  EXPECT_EQ(ProjectMerge(t.program, "C:\\gone.stp"), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp")));
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(ProjectMergeTest, TheNodesComeBehindTheLastSiblingOfTheCurrentNode) {
  EXPECT_EQ(t.merge("Toys", kOtherTree), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,A(a),B,c)");
  EXPECT_EQ(project.dirty, 1);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_EQ(t.files.openHandles(), 0U);
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, TheLastSiblingItselfMayBeCurrent) {
  t.merge("Books", kOtherTree);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,A(a),B,c)");
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, AtTheRootTheyAreTopLevelNodes) {
  t.merge("Home", kOtherTree);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books),A(a),B,c");
  EXPECT_EQ(node("A")->parent, nullptr);
  EXPECT_EQ(node("B")->parent, project.root);
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, CurrentNodeAndRootStay) {
  t.merge("Toys", kOtherTree);
  EXPECT_EQ(project.currentNode, node("Toys"));
  EXPECT_EQ(project.treeNode, node("Toys"));
  EXPECT_EQ(project.root, node("Home"));
}

TEST_F(ProjectMergeTest, OnlyTheFirstNodeGetsTheTrueParent) {
  t.merge("Toys", kOtherTree);
  EXPECT_EQ(node("A")->parent, node("Home"));
  EXPECT_EQ(node("B")->parent, node("Toys"));
  EXPECT_EQ(node("c")->parent, node("Toys"));
  EXPECT_EQ(node("a")->parent, node("A"));
}

TEST_F(ProjectMergeTest, TheFirstNodeHasNoPrev) {
  t.merge("Toys", kOtherTree);
  EXPECT_EQ(node("A")->prev, nullptr);
  EXPECT_EQ(node("B")->prev, node("A"));
  EXPECT_EQ(node("c")->prev, node("B"));
  EXPECT_EQ(node("a")->prev, node("A"));
  const StoreTreeReport report = StoreTreeCheck(project);
  EXPECT_EQ(report.strangePrev, 1U);
  EXPECT_EQ(report.strangeParent, 2U);
}

TEST_F(ProjectMergeTest, BehindAProductEachNodeGetsTheParentOfTheProduct) {
  t.merge("Ball", kOtherTree);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,A(a),B,c),Books)");
  for (const char* title : {"A", "B", "c"}) EXPECT_EQ(node(title)->parent, node("Toys")) << title;
  EXPECT_EQ(node("a")->parent, node("A"));
  EXPECT_EQ(StoreTreeCheck(project).strangeParent, 0U);
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, BehindAProductOfTheTopLevelTheyHaveNoParent) {
  t.open("NODE1=Ball\n");
  t.merge("Ball", kOtherTree);
  EXPECT_EQ(TreeText(project), "Ball,A(a),B,c");
  for (const char* title : {"A", "B", "c"}) EXPECT_EQ(node(title)->parent, nullptr) << title;
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, AfterAShelfItsParentCountsForTheFirstAndTheShelfForTheOthers) {
  t.open("NODE0=Home\n#BRANCH\nNODE2=Shelf\n#EOB\n");
  t.merge("Shelf", kOtherTree);
  EXPECT_EQ(TreeText(project), "Home(Shelf,A(a),B,c)");
  StoreNode* category = AddCategory(project, "New");
  EXPECT_EQ(StoreNodeInsert(t.program, category, node("B")), 0) << "its parent is a shelf";
  EXPECT_EQ(StoreNodeInsert(t.program, category, node("A")), 1);
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, AFileWithoutNodesMarksTheProjectAllTheSame) {
  EXPECT_EQ(t.merge("Toys", "VERSION=107001\nVAR=$A|1\n"), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books)");
  EXPECT_EQ(project.dirty, 1);
  ExpectPlainTree(project);
}

TEST_F(ProjectMergeTest, AnEmptyFileIsMerged) {
  EXPECT_EQ(t.merge("Toys", ""), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books)");
}

TEST_F(ProjectMergeTest, TheSameProjectCanBeMergedTwice) {
  t.merge("Toys", kOtherTree);
  t.merge("a", kOtherTree);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,A(a,A(a),B,c),B,c)");
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, AProjectCanBeMergedIntoItself) {
  t.select("Books");
  EXPECT_EQ(ProjectMerge(t.program, kProjectPath), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,Home(Toys(Ball,Car),Books))");
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, AMergedTreeIsSavedAndReadAgain) {
  t.merge("Toys", kOtherTree);
  const std::string saved = SaveText(t);
  LoadText(t, saved);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,A(a),B,c)");
  ExpectPlainTree(project);
}

TEST_F(ProjectMergeTest, TheWindowShowsTheTreeAnew) {
  t.merge("Toys", kOtherTree);
  EXPECT_THAT(t.view.calls, ElementsAre("clearTree", "fillTree", "loadItemList Toys", "refreshCommandStates"));
}

TEST_F(ProjectMergeTest, NeitherProjectIsWritten) {
  const std::string before = content(kProjectPath);
  t.merge("Toys", kOtherTree);
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_EQ(content(kProjectPath), before);
  EXPECT_EQ(content(kOtherPath), kOtherTree);
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
  EXPECT_EQ(project.projectDir.view(), kShop);
}

TEST_F(ProjectMergeTest, ANodeKeepsAllItsTexts) {
  t.merge("Toys", "NODE0=A\nSTATUS=-2\nMOD=1\nFILE=7.htm\nBODY=x@@@y\nT6=label\n");
  const StoreNode* merged = node("A");
  EXPECT_EQ(merged->status, -2);
  EXPECT_EQ(merged->modified, 1);
  EXPECT_STREQ(merged->fileName.get(), "7.htm");
  EXPECT_STREQ(merged->body.get(), "x\r\ny");
  EXPECT_STREQ(merged->label[5].get(), "label");
  EXPECT_EQ(merged->id, 0);
}

TEST_F(ProjectMergeTest, VariablesAreAdded) {
  t.open("NODE0=Home\nVAR=$A|1\n");
  t.merge("Home", "VAR=$A|2\nVAR=$B|x@@@y\n");
  const UserVariable* variable = project.variables;
  EXPECT_STREQ(variable->value.get(), "1");
  EXPECT_STREQ(variable->next->name.get(), "$A");
  EXPECT_STREQ(variable->next->value.get(), "2");
  EXPECT_STREQ(variable->next->next->value.get(), "x\r\ny");
  EXPECT_EQ(variable->next->next, project.variablesTail);
}

TEST_F(ProjectMergeTest, CardsAreAddedAndMarkedInTheCatalogue) {
  CardEntry* known = CardEntryInit(nullptr);
  known->name.assign("Visa");
  RecordAppend(t.config().cardCatalogue, t.config().cardCatalogueTail, known);
  t.open("NODE0=Home\nCC=1:Bankcard\n");
  EXPECT_EQ(known->selected, 0);
  t.merge("Home", "CC=0:Visa\n");
  EXPECT_STREQ(project.acceptedCards->name.get(), "Bankcard");
  EXPECT_STREQ(project.acceptedCards->next->name.get(), "Visa");
  EXPECT_EQ(project.currentCard, project.acceptedCards->next);
  EXPECT_EQ(known->selected, 1);
}

TEST_F(ProjectMergeTest, TaxMessagesCurrencyMethodNamesAndVersionsAreOverwritten) {
  t.open("NODE0=Home\nTAXF=1\nTAXD=1\nTAXO=1\nOMESSAGE=own\nCMESSAGE=own\nCURR=$\nFNAME=0,own\nFNAME=1,own\nVO=1\n");
  t.merge("Home",
          "VERSION=106000\nTAXF=2\nTAXD=2\nTAXO=2\nOMESSAGE=a@@@b\nCMESSAGE=other\nCURR=L\nFNAME=1,other\nVO=2\n");
  EXPECT_STREQ(project.tax.freightTaxRate.get(), "2");
  EXPECT_EQ(project.tax.taxEnabled, 2);
  EXPECT_EQ(project.tax.taxOption, 2);
  EXPECT_STREQ(project.orderMessage.get(), "a\r\nb");
  EXPECT_STREQ(project.confirmMessage.get(), "other");
  EXPECT_STREQ(project.currency.get(), "L");
  EXPECT_STREQ(project.methodName[0].get(), "own");
  EXPECT_STREQ(project.methodName[1].get(), "other");
  EXPECT_EQ(project.fileVersion, 106000);
  EXPECT_EQ(project.templateVersionOrder, 2);
}

TEST_F(ProjectMergeTest, TheFirstRememberedTemplatesAreOverwritten) {
  t.open("NODE0=Home\nTPL=one\nTPL=two\nTPL=three\n");
  t.merge("Home", "TPL=first\nTPL=second\n");
  EXPECT_STREQ(project.templateNames[0].get(), "first");
  EXPECT_STREQ(project.templateNames[1].get(), "second");
  EXPECT_STREQ(project.templateNames[2].get(), "three");
  EXPECT_TRUE(project.templateNames[3].isNull());
}

TEST_F(ProjectMergeTest, FreightTitleWebFolderAndLayoutAreLeftAlone) {
  SchemeStyle* style = t.config().schemeStyles = SchemeInit(nullptr);
  style->name.assign("Style");
  style->schemes = SchemeInit(nullptr);
  style->schemes->name.assign("Blue");
  style->schemes->prev = style;
  t.open("NODE0=Home\n$AU0,1,,,,,,,,,,,,10,|1\nRULE=0,own\nSTITLE=Shop\nWEB=web\n");
  t.merge("Home", "$AU0,9,,,,,,,,,,,,90,|0\nRULE=0,other\n$NZ0,9,|1\nSTITLE=Other\nWEB=other\nLAYOUT=Style/Blue\n");
  const FreightRegion* region = project.regions;
  EXPECT_EQ(region->next, nullptr);
  EXPECT_STREQ(region->method[0]->value[0].get(), "1");
  EXPECT_STREQ(region->method[0]->rule.get(), "own");
  EXPECT_STREQ(region->regionValue.get(), "10");
  EXPECT_EQ(region->method[0]->active, 1);
  EXPECT_STREQ(project.storeTitle.get(), "Shop");
  EXPECT_STREQ(project.webDir.get(), "web");
  EXPECT_EQ(project.projectScheme, nullptr);
  EXPECT_EQ(t.config().currentScheme, nullptr);
}

TEST_F(ProjectMergeTest, AProjectOfAnOldVersionDoesNotMigrate) {
  t.files.put("template\\order.dat", "new order");
  t.files.put(inShop("order.htm"), "own order");
  EXPECT_EQ(t.merge("Toys", "VERSION=101003\nNODE0=A\n"), 1);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_EQ(content(inShop("order.htm")), "own order");
  EXPECT_EQ(project.fileVersion, 101003);
}

TEST_F(ProjectMergeTest, ShelvesOfAnOldVersionWithAListTemplateBecomeLists) {
  t.merge("Toys", "VERSION=105000\nNODE2=A\nTEMP=list.htm\n");
  EXPECT_EQ(node("A")->kind, NodeKind::List);
}

TEST_F(ProjectMergeTest, NodesBehindTheEndMarkOfTheTopLevelAreNotRead) {
  t.merge("Toys", "NODE0=A\n#EOB\nNODE0=B\nCURR=L\n");
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,A)");
  EXPECT_STREQ(project.currency.get(), "$");
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, AnEmptyStoreReadsTheWholeProject) {
  SchemeStyle* style = t.config().schemeStyles = SchemeInit(nullptr);
  style->name.assign("Style");
  Scheme* scheme = style->schemes = SchemeInit(nullptr);
  scheme->name.assign("Blue");
  scheme->prev = style;
  t.open("");
  t.files.put(kOtherPath,
              std::string(kOtherTree) + "$AU0,1,|1\nRULE=0,r\nSTITLE=Other\nWEB=web\nLAYOUT=Style/Blue\n");
  EXPECT_EQ(ProjectMerge(t.program, kOtherPath.c_str()), 1);
  EXPECT_EQ(TreeText(project), "A(a),B,c");
  EXPECT_EQ(project.currentNode, project.root);
  EXPECT_EQ(project.treeNode, project.root);
  EXPECT_STREQ(project.regions->method[0]->rule.get(), "r");
  EXPECT_STREQ(project.storeTitle.get(), "Other");
  EXPECT_STREQ(project.webDir.get(), "web");
  EXPECT_EQ(project.projectScheme, scheme);
  EXPECT_EQ(project.dirty, 1);
  EXPECT_STREQ(project.projectFile.get(), kProjectPath) << "it is read, not opened";
  ExpectPlainTree(project);
}

TEST_F(ProjectMergeTest, AnEmptyStoreShowsTheFormToo) {
  t.open("");
  t.files.put(kOtherPath, kOtherTree);
  ProjectMerge(t.program, kOtherPath.c_str());
  EXPECT_THAT(t.view.calls,
              ElementsAre("loadForm", "clearTree", "fillTree", "loadItemList A", "refreshCommandStates"));
}

TEST_F(ProjectMergeTest, AnEmptyProjectIntoAnEmptyStoreLeavesItEmpty) {
  t.open("");
  t.files.put(kOtherPath, "");
  EXPECT_EQ(ProjectMerge(t.program, kOtherPath.c_str()), 1);
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.currentNode, nullptr);
  EXPECT_EQ(project.dirty, 1);
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(ProjectMergeTest, AnEmptyStoreDoesNotGetTheTemplatesOfTheFirstTopLevelNode) {
  t.open("");
  for (const char* name : {"a.htm", "below.htm", "b.htm"}) t.files.put(inOther(name), name);
  t.files.put(kOtherPath, "NODE0=A\nTEMP=a.htm\n#BRANCH\nNODE1=x\nTEMP=below.htm\n#EOB\nNODE0=B\nTEMP=b.htm\n");
  ProjectMerge(t.program, kOtherPath.c_str());
  EXPECT_THAT(t.files.log, ElementsAre(copyOf("b.htm")));
}

TEST_F(ProjectMergeTest, TemplatesAreCopiedFromTheFolderOfTheOtherProject) {
  t.files.put(inOther("special.htm"), "special of the other");
  t.merge("Toys", "NODE0=A\nTEMP=special.htm\n");
  EXPECT_EQ(content(inShop("special.htm")), "special of the other");
  EXPECT_THAT(t.files.log, ElementsAre(copyOf("special.htm")));
}

TEST_F(ProjectMergeTest, ATemplateIsCopiedOnceHoweverManyNodesUseIt) {
  t.files.put(inOther("special.htm"), "special");
  std::string text;
  for (int i = 0; i < 50; ++i) text += "NODE0=A\nTEMP=special.htm\n#BRANCH\nNODE1=x\nTEMP=special.htm\n#EOB\n";
  t.merge("Toys", text);
  EXPECT_THAT(t.files.log, ElementsAre(copyOf("special.htm")));
}

TEST_F(ProjectMergeTest, ATemplateThatCanNotBeCopiedIsTriedOnceAndItsNodesKeepItsName) {
  EXPECT_EQ(t.merge("Toys", "NODE0=A\nTEMP=gone.htm\nNODE0=B\nTEMP=gone.htm\nNODE0=C\nTEMP=GONE.HTM\n"), 1);
  EXPECT_THAT(t.files.log, ElementsAre(copyOf("gone.htm")));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  for (const char* title : {"A", "B"}) EXPECT_STREQ(node(title)->templateName.get(), "gone.htm");
  EXPECT_STREQ(node("C")->templateName.get(), "GONE.HTM");
  EXPECT_EQ(content(inShop("gone.htm")), "(none)");
}

TEST_F(ProjectMergeTest, ATemplateThatTheOpenProjectHasStays) {
  t.files.put(inShop("special.htm"), "own");
  t.files.put(inOther("special.htm"), "other");
  t.merge("Toys", "NODE0=A\nTEMP=special.htm\nNODE0=B\nTEMP=Special.HTM\n");
  EXPECT_EQ(content(inShop("special.htm")), "own");
  EXPECT_THAT(t.files.log, IsEmpty());
}

TEST_F(ProjectMergeTest, NodesWithoutATemplateOfTheirOwnCopyNone) {
  t.files.put(inOther("category.htm"), "other");
  t.merge("Toys", "NODE0=A\nNODE0=B\nTEMP=\n");
  EXPECT_THAT(t.files.log, IsEmpty());
}

TEST_F(ProjectMergeTest, TheTemplatesOfTheOpenProjectAreNotCopied) {
  t.open("NODE0=Home\nTEMP=own.htm\n");
  t.files.put(inOther("own.htm"), "other");
  t.merge("Home", "NODE0=A\n");
  EXPECT_THAT(t.files.log, IsEmpty());
}

TEST_F(ProjectMergeTest, TemplatesOfChildrenComeBeforeThoseOfTheirHolder) {
  t.merge("Toys",
          "NODE0=A\nTEMP=1.htm\n#BRANCH\nNODE0=B\nTEMP=2.htm\n#BRANCH\nNODE1=x\nTEMP=3.htm\n#EOB\nNODE1=y\n"
          "TEMP=4.htm\n#EOB\nNODE0=C\nTEMP=5.htm\n");
  EXPECT_THAT(t.files.log,
              ElementsAre(copyOf("3.htm"), copyOf("2.htm"), copyOf("4.htm"), copyOf("1.htm"), copyOf("5.htm")));
}

TEST_F(ProjectMergeTest, WhatHangsBelowAProductIsMergedWithItsTemplates) {
  t.files.put(inOther("below.htm"), "below");
  t.merge("Toys", "NODE1=A\n#BRANCH\nNODE1=x\nTEMP=below.htm\n#EOB\n");
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car),Books,A[x])");
  EXPECT_EQ(content(inShop("below.htm")), "below");
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, EachMergeStartsWithNoTemplateKnown) {
  t.merge("Toys", "NODE0=A\nTEMP=special.htm\n");
  EXPECT_EQ(content(inShop("special.htm")), "(none)");
  t.files.put(inOther("special.htm"), "special");
  t.merge("Toys", "NODE0=B\nTEMP=special.htm\n");
  EXPECT_EQ(content(inShop("special.htm")), "special");
}

TEST_F(ProjectMergeTest, ATemplateInAFolderOfItsOwnNeedsThatFolder) {
  t.files.put(inOther("more\\special.htm"), "special");
  EXPECT_EQ(t.merge("Toys", "NODE0=A\nTEMP=more\\special.htm\n"), 1);
  EXPECT_EQ(content(inShop("more\\special.htm")), "(none)");
  t.files.putFolder(inShop("more"));
  t.merge("Toys", "NODE0=A\nTEMP=more\\special.htm\n");
  EXPECT_EQ(content(inShop("more\\special.htm")), "special");
}

TEST_F(ProjectMergeTest, ABranchOfAHundredThousandLevelsIsMerged) {
  constexpr int kLevels = 100'000;
  std::string text;
  for (int level = 1; level < kLevels; ++level) text += "NODE0=A\nTEMP=special.htm\n#BRANCH\n";
  text += "NODE1=Deepest\nTEMP=deepest.htm\n";
  for (int level = 1; level < kLevels; ++level) text += "#EOB\n";
  text += "NODE0=B\nTEMP=last.htm\n";
  EXPECT_EQ(t.merge("Toys", text), 1);
  EXPECT_THAT(t.files.log, ElementsAre(copyOf("deepest.htm"), copyOf("special.htm"), copyOf("last.htm")));
  EXPECT_EQ(StoreTreeCheck(project).nodes, 5U + kLevels + 1U);
  ExpectSoundTree(project);
}

TEST_F(ProjectMergeTest, MergeCopyTemplatesGivesOneWithoutNodesToo) {
  EXPECT_EQ(MergeCopyTemplates(t.program, nullptr, kOtherPath), 1);
  EXPECT_THAT(t.files.log, IsEmpty());
}

TEST_F(ProjectMergeTest, ATemplateNameThatLeadsOutOfItsFolderCopiesNothing) {
  for (const char* name : {"..\\..\\..\\upgrade.new", "../../../upgrade.new", "more\\..\\..\\Shop.stp",
                           "C:\\upgrade.new", "\\upgrade.new", "/upgrade.new", "C:upgrade.new", "...\\upgrade.new"}) {
    t.files.put(inOther(name), "foreign");
    t.files.putFolder(inShop("..\\..\\.."));
    t.files.log.clear();
    EXPECT_EQ(t.merge("Toys", std::string("NODE0=") + name + "\nTEMP=" + name + "\n"), 1);
    EXPECT_THAT(t.files.log, IsEmpty()) << name;
    EXPECT_STREQ(find(project, name)->templateName.get(), name) << "the node keeps it";
  }
}

// A disk that keeps the paths of copies as they are asked for.
class RawPaths : public FilesWrapper {
 public:
  using FilesWrapper::FilesWrapper;
  std::vector<std::string> copies;
  bool copy(std::string_view from, std::string_view to, bool overwrite) override {
    copies.push_back(std::string(from).append(" to ").append(to));
    return FilesWrapper::copy(from, to, overwrite);
  }
};

TEST_F(ProjectMergeTest, DoubledBackSlashesInThePathsOfATemplateAreReduced) {
  RawPaths raw(t.files);
  Program program(raw, t.clock, t.screen, t.clipboard, t.view);
  program.project.projectDir.assign("C:\\\\Varlo\\");
  StoreNode* merged = program.project.nodes.allocate();
  merged->templateName.assign("more\\\\special.htm");
  MergeCopyTemplates(program, merged, "C:\\\\Other\\\\Other.stp");
  EXPECT_THAT(raw.copies, ElementsAre("C:\\Other\\Template\\more\\special.htm to "
                                      "C:\\Varlo\\Template\\more\\special.htm"));
}

// What may be done to merged nodes afterwards. Their odd links must lose nothing.
class AfterMergeTest : public testing::Test {
 protected:
  static constexpr std::array<const char*, 9> kTitles{"Home", "Toys", "Ball", "Car", "Books", "A", "a", "B", "c"};

  // The titles of the branch of a node.
  static std::vector<std::string> branchTitles(const StoreProject& project, const StoreNode& top) {
    std::vector<std::string> titles;
    for (const StoreNode* node : allNodes(project)) {
      if (IsInBranch(top, *node)) titles.emplace_back(node->title.orEmpty());
    }
    std::sort(titles.begin(), titles.end());
    return titles;
  }
  // Deletes a node and expects that nothing but its branch is gone.
  static void expectCleanDelete(Program& program, StoreNode* node) {
    const std::vector<std::string> before = sortedTitles(program.project);
    const std::vector<std::string> gone = branchTitles(program.project, *node);
    std::vector<std::string> expected;
    std::set_difference(before.begin(), before.end(), gone.begin(), gone.end(), std::back_inserter(expected));
    StoreNodeMarkSiblings(program.project, *node);
    StoreNodeDelete(program, node);
    EXPECT_EQ(sortedTitles(program.project), expected);
    ExpectSoundTree(program.project);
  }
  // Moves a node, whether or not that is allowed, and expects that every node is still there.
  static int expectCleanMove(Program& program, StoreNode* node, StoreNode* target) {
    const std::vector<std::string> before = sortedTitles(program.project);
    const std::string text = TreeText(program.project);
    const int moved = StoreNodeInsert(program, node, target);
    EXPECT_EQ(sortedTitles(program.project), before);
    if (moved == 0) {
      EXPECT_EQ(TreeText(program.project), text);
    }
    ExpectSoundTree(program.project);
    return moved;
  }
};

TEST_F(AfterMergeTest, DeletingTheFirstMergedNodeKeepsItsSiblings) {
  TwoProjects t;
  t.merge("Toys", kOtherTree);
  StoreNodeDelete(t.program, find(t.project(), "A"));
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car),Books,B,c)");
  EXPECT_EQ(t.project().currentNode, find(t.project(), "Books"));
  ExpectSoundTree(t.project());
}

TEST_F(AfterMergeTest, DeletingTheNodeBeforeTheMergedOnesKeepsThem) {
  TwoProjects t;
  t.merge("Toys", kOtherTree);
  StoreNodeDelete(t.program, find(t.project(), "Books"));
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car),A(a),B,c)");
  ExpectSoundTree(t.project());
}

TEST_F(AfterMergeTest, DeletingTheNodeThatWasCurrentKeepsTheMergedOnesThatHaveItAsParent) {
  TwoProjects t;
  t.merge("Toys", kOtherTree);
  StoreNodeDelete(t.program, find(t.project(), "Toys"));
  EXPECT_EQ(TreeText(t.project()), "Home(Books,A(a),B,c)");
  StoreNodeDelete(t.program, find(t.project(), "B"));
  EXPECT_EQ(TreeText(t.project()), "Home(Books,A(a),c)");
  ExpectSoundTree(t.project());
}

TEST_F(AfterMergeTest, TheFirstMergedNodeCanMove) {
  TwoProjects t;
  t.merge("Toys", kOtherTree);
  EXPECT_EQ(StoreNodeInsert(t.program, find(t.project(), "A"), find(t.project(), "Toys")), 1);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car,A(a)),Books,B,c)");
  ExpectSoundTree(t.project());
}

TEST_F(AfterMergeTest, TheNodeThatWasCurrentCanMoveBelowAMergedOne) {
  TwoProjects t;
  t.merge("Toys", kOtherTree);
  EXPECT_EQ(StoreNodeInsert(t.program, find(t.project(), "Toys"), find(t.project(), "B")), 1);
  EXPECT_EQ(TreeText(t.project()), "Home(Books,A(a),B(Toys(Ball,Car)),c)");
  ExpectSoundTree(t.project());
}

TEST_F(AfterMergeTest, EveryNodeCanBeDeletedWhereverTheMergeWas) {
  for (const char* current : kTitles) {
    if (current == std::string_view("A")) break;  // those from here on are merged
    for (const char* deleted : kTitles) {
      SCOPED_TRACE(std::string("merged at ") + current + ", deleted " + deleted);
      TwoProjects t;
      t.merge(current, kOtherTree);
      expectCleanDelete(t.program, find(t.project(), deleted));
    }
  }
}

TEST_F(AfterMergeTest, EveryNodeCanBeMovedOntoEveryOther) {
  for (const char* current : {"Home", "Toys", "Ball", "Books"}) {
    int moves = 0;
    for (const char* moved : kTitles) {
      for (const char* target : kTitles) {
        SCOPED_TRACE(std::string("merged at ") + current + ", moved " + moved + " onto " + target);
        TwoProjects t;
        t.merge(current, kOtherTree);
        moves += expectCleanMove(t.program, find(t.project(), moved), find(t.project(), target));
      }
    }
    EXPECT_GT(moves, 30) << current;
  }
}

TEST_F(AfterMergeTest, AProductMadeAtAnyNodeLosesNone) {
  for (const char* current : kTitles) {
    SCOPED_TRACE(current);
    TwoProjects t;
    t.merge("Toys", kOtherTree);
    const std::size_t before = allNodes(t.project()).size();
    t.select(current);
    EXPECT_EQ(NewProduct(t.program, "New"), 1);
    EXPECT_EQ(allNodes(t.project()).size(), before + 1);
    ExpectSoundTree(t.project());
    expectCleanDelete(t.program, find(t.project(), "New"));
  }
}

TEST_F(AfterMergeTest, ManyMergesMovesAndDeletesLoseNothing) {
  TwoProjects t;
  StoreProject& project = t.project();
  std::uint32_t state = 12345;
  const auto pick = [&state](std::size_t count) {
    state = state * 1664525U + 1013904223U;
    return (state >> 8) % count;
  };
  int made = 0;
  for (int round = 0; round < 2000 && !HasFailure(); ++round) {
    const std::vector<StoreNode*> nodes = allNodes(project);
    if (nodes.size() < 10 && project.root != nullptr) {
      const std::string n = std::to_string(++made);
      Select(project, nodes[pick(nodes.size())]);
      t.files.put(kOtherPath, "NODE0=A" + n + "\n#BRANCH\nNODE1=a" + n + "\nNODE2=s" + n + "\n#EOB\nNODE0=B" + n +
                                  "\nNODE1=c" + n + "\n");
      ASSERT_EQ(ProjectMerge(t.program, kOtherPath.c_str()), 1);
      EXPECT_EQ(allNodes(project).size(), nodes.size() + 5);
      ExpectSoundTree(project);
    } else if (pick(20) == 0 && nodes.size() > 1) {
      expectCleanDelete(t.program, nodes[1 + pick(nodes.size() - 1)]);
    } else {
      expectCleanMove(t.program, nodes[pick(nodes.size())], nodes[pick(nodes.size())]);
    }
  }
  EXPECT_GT(made, 10);
}

class FreightImportTest : public testing::Test {
 protected:
  TwoProjects t;
  StoreProject& project = t.project();

  void SetUp() override {
    t.open(
        "NODE0=Home\n"
        "$AU0,1,2,3,4,5,6,7,8,9,10,11,12,40,|1\nRULE=0,own rule\n"
        "$AU1,1,,,,,,,,,,,,40,|1\n$AU2,1,,,,,,,,,,,,40,|0\n"
        "$NZ0,5,,,,,,,,,,,,50,|1\n$NZ1,,,,,,,,,,,,,50,|0\nRULE=1,other rule\n$NZ2,,,,,,,,,,,,,50,|0\n"
        "FNAME=0,Air\nFNAME=1,Sea\nFNAME=2,Road\n");
  }
  FreightRegion& region(std::string_view code) {
    for (FreightRegion* at = project.regions; at != nullptr; at = at->next) {
      if (at->code.view() == code) return *at;
    }
    ADD_FAILURE() << "no region " << code;
    return *project.regions;
  }
  FreightMethod& method(std::string_view code, std::size_t index) { return *region(code).method[index]; }
  // The codes of all regions, as in "AU NZ".
  std::string codes() {
    std::string text;
    for (const FreightRegion* at = project.regions; at != nullptr; at = at->next) {
      text.append(text.empty() ? "" : " ").append(at->code.view());
    }
    return text;
  }
  static bool isEmpty(const FreightMethod& method) {
    const bool noValue =
        std::all_of(method.value.begin(), method.value.end(), [](const Text& value) { return value.isNull(); });
    return noValue && method.rule.isNull() && method.active == 0;
  }
  void addToCatalogue(const char* code, const char* name) {
    FreightRegion* known = FreightRegionMake();
    known->code.assign(code);
    known->name.assign(name);
    RecordAppend(t.config().regionCatalogue, t.config().regionCatalogueTail, known);
  }
  void expectOwnTables() {
    EXPECT_STREQ(method("AU", 0).value[0].get(), "1");
    EXPECT_STREQ(method("AU", 0).value[11].get(), "12");
    EXPECT_STREQ(method("AU", 0).rule.get(), "own rule");
    EXPECT_EQ(method("AU", 0).active, 1);
    EXPECT_EQ(method("AU", 2).active, 0);
    EXPECT_STREQ(method("NZ", 1).rule.get(), "other rule");
  }
  void expectUnchanged() {
    expectOwnTables();
    EXPECT_EQ(project.dirty, 0);
    EXPECT_THAT(t.view.calls, IsEmpty());
  }
};

TEST_F(FreightImportTest, ANullPathGivesZero) {
  EXPECT_EQ(FreightImport(t.program, nullptr), 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  expectUnchanged();
}

TEST_F(FreightImportTest, NothingCurrentInAStoreThatIsNotEmptyGivesZeroWithoutAMessage) {
  project.currentNode = nullptr;
  EXPECT_EQ(t.import("$AU0,9,|1\n"), 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  expectUnchanged();
}

TEST_F(FreightImportTest, AFileThatCanNotBeOpenedIsToldAndNothingIsEmptied) {
  EXPECT_EQ(FreightImport(t.program, "C:\\gone.stp"), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp")));
  expectUnchanged();
}

TEST_F(FreightImportTest, AFileWithoutFreightLinesEmptiesEveryMethodAndKeepsTheRegions) {
  EXPECT_EQ(t.import("NODE0=Other\n"), 1);
  EXPECT_EQ(codes(), "AU NZ");
  for (const char* code : {"AU", "NZ"}) {
    for (std::size_t index = 0; index < kFreightMethods; ++index) EXPECT_TRUE(isEmpty(method(code, index)));
  }
  EXPECT_STREQ(region("AU").name.get(), "AU");
  EXPECT_STREQ(region("AU").regionValue.get(), "40");
  EXPECT_STREQ(region("NZ").regionValue.get(), "50");
  EXPECT_STREQ(project.methodName[0].get(), "Air");
}

TEST_F(FreightImportTest, MarksTheProjectAndRefreshesTheList) {
  EXPECT_EQ(t.import("$AU0,9,|1\n"), 1);
  EXPECT_EQ(project.dirty, 1);
  EXPECT_THAT(t.view.calls, ElementsAre("loadFreightList", "refreshCommandStates"));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(FreightImportTest, ValuesAndFlagsReplaceThoseOfTheRegionWithTheCode) {
  t.import("$au0,a,,c,|0\n$AU2,x\n");
  EXPECT_EQ(codes(), "AU NZ");
  EXPECT_STREQ(method("AU", 0).value[0].get(), "a");
  EXPECT_STREQ(method("AU", 0).value[1].get(), "");
  EXPECT_STREQ(method("AU", 0).value[2].get(), "c");
  EXPECT_STREQ(method("AU", 0).value[3].get(), "");
  EXPECT_TRUE(method("AU", 0).value[4].isNull()) << "the old value is gone";
  EXPECT_EQ(method("AU", 0).active, 0);
  EXPECT_TRUE(method("AU", 0).rule.isNull());
  EXPECT_TRUE(isEmpty(method("AU", 1)));
  EXPECT_STREQ(method("AU", 2).value[0].get(), "x");
  EXPECT_EQ(method("AU", 2).active, 1) << "a line without a flag offers its method";
}

TEST_F(FreightImportTest, AllTwelveValuesAreReadAndTheThirteenthIsNot) {
  t.import("$AU0,a,b,c,d,e,f,g,h,i,j,k,l,99,|1\n");
  for (std::size_t i = 0; i < kFreightCells; ++i) {
    EXPECT_EQ(method("AU", 0).value[i].view(), std::string(1, static_cast<char>('a' + i)));
  }
  EXPECT_STREQ(region("AU").regionValue.get(), "40");
}

TEST_F(FreightImportTest, RegionsThatTheOtherFileDoesNotHaveStayEmptyAndInactive) {
  t.import("$AU0,9,|1\n");
  EXPECT_EQ(codes(), "AU NZ");
  for (std::size_t index = 0; index < kFreightMethods; ++index) EXPECT_TRUE(isEmpty(method("NZ", index)));
}

TEST_F(FreightImportTest, ARegionThatIsNotKnownIsAddedWithItsThreeMethods) {
  t.import("$US1,7,,,,,,,,,,,,99,|1\nRULE=1,rule\n$us2,8,|0\n");
  EXPECT_EQ(codes(), "AU NZ US");
  EXPECT_EQ(&region("US"), project.regionsTail);
  EXPECT_STREQ(region("US").name.get(), "US");
  EXPECT_TRUE(region("US").regionValue.isNull());
  EXPECT_TRUE(isEmpty(method("US", 0)));
  EXPECT_STREQ(method("US", 1).value[0].get(), "7");
  EXPECT_STREQ(method("US", 1).rule.get(), "rule");
  EXPECT_STREQ(method("US", 2).value[0].get(), "8");
}

TEST_F(FreightImportTest, TheCatalogueGivesNameAndCode) {
  addToCatalogue("Us", "United States");
  addToCatalogue("AU", "Australia");
  region("AU").active = 1;
  t.import("$US0,7,|1\n$au0,9,|1\n");
  EXPECT_EQ(codes(), "AU NZ Us");
  EXPECT_STREQ(region("Us").name.get(), "United States");
  EXPECT_STREQ(region("AU").name.get(), "Australia");
  EXPECT_EQ(region("AU").active, 0);
}

TEST_F(FreightImportTest, ANameThatTheUserGaveStaysOutsideTheCatalogue) {
  region("NZ").name.assign("New Zealand");
  t.import("$nz0,7,|1\n");
  EXPECT_STREQ(region("NZ").name.get(), "New Zealand");
  EXPECT_STREQ(region("NZ").code.get(), "NZ");
}

TEST_F(FreightImportTest, ARuleAppliesToTheRegionOfTheLastFreightLine) {
  t.import("RULE=0,too early\n$AU0,9,|1\nRULE=2,for AU\n$NZ0,9,|1\nNODE0=between\nRULE=0,for NZ\n");
  EXPECT_TRUE(method("AU", 0).rule.isNull());
  EXPECT_STREQ(method("AU", 2).rule.get(), "for AU");
  EXPECT_STREQ(method("NZ", 0).rule.get(), "for NZ");
}

TEST_F(FreightImportTest, RulesWithoutACommaOrOfAnotherMethodAreIgnored) {
  t.import("$AU0,9,|1\nRULE=1\nRULE=3,x\nRULE=-1,x\n");
  for (std::size_t index = 0; index < kFreightMethods; ++index) EXPECT_TRUE(method("AU", index).rule.isNull());
}

TEST_F(FreightImportTest, ARuleMayHoldCommas) {
  t.import("$AU0,9,|1\nRULE=0,a,b=c\n");
  EXPECT_STREQ(method("AU", 0).rule.get(), "a,b=c");
}

TEST_F(FreightImportTest, MethodNamesReplaceThoseOfTheStore) {
  t.import("FNAME=1,Rail\nFNAME=3,x\nFNAME=2\nFNAME=-1,x\n");
  EXPECT_STREQ(project.methodName[0].get(), "Air");
  EXPECT_STREQ(project.methodName[1].get(), "Rail");
  EXPECT_STREQ(project.methodName[2].get(), "Road");
}

TEST_F(FreightImportTest, EveryOtherLineIsIgnored) {
  t.import(
      "TIME=1\nVERSION=101003\nOWNER=x\nNODE0=A\nSTATUS=-2\n#BRANCH\nNODE1=x\n#EOB\nTPL=t\nVAR=$A|1\nLAYOUT=a/b\n"
      "WEB=w\nSTITLE=s\nTAXF=1\nOMESSAGE=o\nCMESSAGE=c\nVO=1\nVC=1\nTAXD=1\nTAXO=1\nCURR=L\nCC=0:Visa\n"
      " $AU0,9,|1\nfname=0,x\nrubbish\n\n");
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_EQ(project.root->status, 0);
  EXPECT_EQ(project.fileVersion, 107001);
  EXPECT_TRUE(project.templateNames[0].isNull());
  EXPECT_EQ(project.variables, nullptr);
  EXPECT_TRUE(project.webDir.isNull());
  EXPECT_TRUE(project.storeTitle.isNull());
  EXPECT_TRUE(project.tax.freightTaxRate.isNull());
  EXPECT_TRUE(project.orderMessage.isNull());
  EXPECT_TRUE(project.confirmMessage.isNull());
  EXPECT_EQ(project.templateVersionOrder, 0);
  EXPECT_EQ(project.tax.taxEnabled, 0);
  EXPECT_EQ(project.tax.taxOption, 0);
  EXPECT_STREQ(project.currency.get(), "$");
  EXPECT_EQ(project.acceptedCards, nullptr);
  EXPECT_TRUE(isEmpty(method("AU", 0)));
  EXPECT_STREQ(project.methodName[0].get(), "Air");
  ExpectPlainTree(project);
}

TEST_F(FreightImportTest, AnEndMarkDoesNotEndTheReading) {
  t.import("NODE0=A\n#EOB\n#EOB\n$AU0,9,|1\n");
  EXPECT_STREQ(method("AU", 0).value[0].get(), "9");
}

TEST_F(FreightImportTest, LinesAreTrimmedAtTheirEnd) {
  t.import("$AU0,9,|1  \r\nRULE=0,rule  \r\nFNAME=0,Rail \r\n");
  EXPECT_EQ(method("AU", 0).active, 1);
  EXPECT_STREQ(method("AU", 0).rule.get(), "rule");
  EXPECT_STREQ(project.methodName[0].get(), "Rail");
}

TEST_F(FreightImportTest, AFreightLineWithoutACommaIsIgnored) {
  t.import("$AU0,9,|1\n$NZ0\n$\nRULE=0,rule\n");
  EXPECT_EQ(codes(), "AU NZ");
  EXPECT_TRUE(isEmpty(method("NZ", 0)));
  EXPECT_STREQ(method("AU", 0).rule.get(), "rule");
}

TEST_F(FreightImportTest, AnEmptyStoreTakesThemToo) {
  t.open("");
  EXPECT_EQ(t.import("$AU0,9,|1\nFNAME=0,Rail\n"), 1);
  EXPECT_EQ(codes(), "AU");
  EXPECT_STREQ(method("AU", 0).value[0].get(), "9");
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(FreightImportTest, TheProjectsOwnFileBringsBackItsTablesButNotTheRegionValues) {
  region("AU").regionValue.assign("changed");
  method("AU", 0).value[0].assign("changed");
  EXPECT_EQ(FreightImport(t.program, kProjectPath), 1);
  expectOwnTables();
  EXPECT_STREQ(region("AU").regionValue.get(), "changed");
}

}  // namespace
}  // namespace varlo
