#include "persist/project/project_parse.h"

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "core/store/user_variable.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class ProjectParseTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void TearDown() override { ExpectSoundTree(project); }
  const StoreNode& root() { return *project.root; }
};

TEST_F(ProjectParseTest, ANodeWithoutStatusOrModHasZeroInBoth) {
  LoadCurrent(t, "NODE0=Home\n");
  EXPECT_EQ(root().status, 0);
  EXPECT_EQ(root().modified, 0);
  EXPECT_EQ(root().id, 0);
}

TEST_F(ProjectParseTest, OldNodeKeysGiveCategoryAndProduct) {
  LoadCurrent(t, "NODE=Toys\nUNODE=Ball\n");
  EXPECT_STREQ(root().title.get(), "Toys");
  EXPECT_EQ(root().kind, NodeKind::Category);
  EXPECT_STREQ(root().next->title.get(), "Ball");
  EXPECT_EQ(root().next->kind, NodeKind::Product);
}

TEST_F(ProjectParseTest, TheDigitIsTheKind) {
  LoadCurrent(t, "NODE0=a\nNODE1=b\nNODE2=c\nNODE3=d\nNODE4=e\n");
  const StoreNode* node = project.root;
  for (const NodeKind kind : {NodeKind::Category, NodeKind::Product, NodeKind::Shelf, NodeKind::List}) {
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->kind, kind);
    node = node->next;
  }
  EXPECT_EQ(node, nullptr);
}

TEST_F(ProjectParseTest, EveryTextKeyFillsItsField) {
  LoadCurrent(t,
              "NODE1=ti\nSTATUS=-2\nMOD=1\nFILE=fi\nPAGE=pa\nIMAGE=im\nLINK=li\nKEY=ke\nDESC=de\nBODY=a@@@b\n"
              "COST=co\nCODE=cd\nTEMP=te\nF=fr\nW=we\nX=ta\nF1=f1\nF2=f2\nF3=f3\nF4=f4\nF5=f5\nF6=f6\n"
              "T1=t1\nT2=t2\nT3=t3\nT4=t4\nT5=t5\nT6=t6\n");
  const StoreNode& node = root();
  EXPECT_STREQ(node.title.get(), "ti");
  EXPECT_EQ(node.status, kStatusDisabled);
  EXPECT_EQ(node.modified, 1);
  EXPECT_STREQ(node.fileName.get(), "fi");
  EXPECT_STREQ(node.pageTitle.get(), "pa");
  EXPECT_STREQ(node.image.get(), "im");
  EXPECT_STREQ(node.imageLink.get(), "li");
  EXPECT_STREQ(node.metaKeywords.get(), "ke");
  EXPECT_STREQ(node.metaDescription.get(), "de");
  EXPECT_STREQ(node.body.get(), "a\r\nb");
  EXPECT_STREQ(node.cost.get(), "co");
  EXPECT_STREQ(node.productCode.get(), "cd");
  EXPECT_STREQ(node.templateName.get(), "te");
  EXPECT_STREQ(node.freight.get(), "fr");
  EXPECT_STREQ(node.weight.get(), "we");
  EXPECT_STREQ(node.tax.get(), "ta");
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(node.field[i].view(), "f" + std::to_string(i + 1));
    EXPECT_EQ(node.label[i].view(), "t" + std::to_string(i + 1));
  }
}

TEST_F(ProjectParseTest, AnEmptyValueIsPresentAndEmpty) {
  LoadCurrent(t, "NODE1=\nCOST=\n");
  EXPECT_STREQ(root().title.get(), "");
  EXPECT_STREQ(root().cost.get(), "");
  EXPECT_TRUE(root().tax.isNull());
}

TEST_F(ProjectParseTest, TheValueIsBehindTheFirstEqualsSign) {
  LoadCurrent(t, "NODE1=a=b\nLINK=x?y=1\n");
  EXPECT_STREQ(root().title.get(), "a=b");
  EXPECT_STREQ(root().imageLink.get(), "x?y=1");
}

TEST_F(ProjectParseTest, ModGoesIntoASignedByte) {
  LoadCurrent(t, "NODE1=a\nMOD=300\nNODE1=b\nMOD=200\n");
  EXPECT_EQ(root().modified, 44);
  EXPECT_EQ(root().next->modified, -56);
}

TEST_F(ProjectParseTest, AStatusOfMinusOneIsKept) {
  LoadCurrent(t, "NODE1=a\nSTATUS=-1\n");
  EXPECT_EQ(root().status, -1);
}

TEST_F(ProjectParseTest, TrailingBlanksOfEveryValueAreLost) {
  LoadCurrent(t, "NODE1=a  \r\nCOST=9 \n");
  EXPECT_STREQ(root().title.get(), "a");
  EXPECT_STREQ(root().cost.get(), "9");
}

TEST_F(ProjectParseTest, UnknownBlankAndStrayLinesAreSkipped) {
  LoadCurrent(t, "OWNER=x\nTIME=5\n\nNODE0=a\n the rest of a value\nnode1=b\nCOSTS=5\nCOST\n#remark\n=\n=x\n F=1\n");
  EXPECT_EQ(TreeText(project), "a");
  EXPECT_TRUE(root().cost.isNull());
  EXPECT_TRUE(root().freight.isNull());
}

TEST_F(ProjectParseTest, KeyLinesBeforeAnyNodeAreIgnored) {
  LoadCurrent(t, "COST=5\nSTATUS=-2\nMOD=1\nBODY=x\nTEMP=list.htm\n#BRANCH\nNODE0=Home\n");
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_TRUE(root().cost.isNull());
  EXPECT_EQ(root().status, 0);
}

TEST_F(ProjectParseTest, BranchesNest) {
  LoadCurrent(t, "NODE0=a\n#BRANCH\nNODE0=b\n#BRANCH\nNODE1=c\nNODE1=d\n#EOB\nNODE0=e\n#EOB\nNODE0=f\n");
  EXPECT_EQ(TreeText(project), "a(b(c,d),e),f");
  ExpectPlainTree(project);
}

TEST_F(ProjectParseTest, KeyLinesBehindABranchGoToTheNodeBeforeIt) {
  LoadCurrent(t, "NODE0=a\n#BRANCH\nNODE1=b\n#EOB\nCOST=5\n");
  EXPECT_STREQ(root().cost.get(), "5");
}

TEST_F(ProjectParseTest, ABranchBehindAProductHasTheProductsParent) {
  LoadCurrent(t, "NODE0=a\n#BRANCH\nUNODE=b\n#BRANCH\nUNODE=c\nUNODE=d\n#EOB\n#EOB\n");
  EXPECT_EQ(TreeText(project), "a(b[c,d])");
  EXPECT_EQ(root().child->child->parent, project.root);
  EXPECT_EQ(root().child->child->next->parent, project.root);
  EXPECT_EQ(root().child->child->prev, root().child);
}

TEST_F(ProjectParseTest, ASecondBranchBehindOneNodeReplacesItsFirstList) {
  LoadCurrent(t, "NODE0=a\n#BRANCH\nNODE1=b\n#EOB\n#BRANCH\nNODE1=c\n#EOB\n");
  EXPECT_EQ(TreeText(project), "a(c)");
}

TEST_F(ProjectParseTest, AnOpenBranchAtTheEndOfTheFileIsKept) {
  LoadCurrent(t, "NODE0=a\n#BRANCH\nNODE0=b\n#BRANCH\nNODE1=c");
  EXPECT_EQ(TreeText(project), "a(b(c))");
}

TEST_F(ProjectParseTest, AnEobAtTopLevelEndsTheReading) {
  project.methodName[0].assign("before");
  LoadCurrent(t, "NODE0=a\n#EOB\nNODE0=b\nTPL=x.htm\nVAR=$A|1\nFNAME=0,after\n");
  EXPECT_EQ(TreeText(project), "a");
  EXPECT_TRUE(project.templateNames[0].isNull());
  EXPECT_EQ(project.variables, nullptr);
  EXPECT_STREQ(project.methodName[0].get(), "before");
}

TEST_F(ProjectParseTest, NestingOfTwoHundredThousandBranchesLoads) {
  std::string text;
  for (int i = 0; i < 200000; ++i) text += "NODE0=x\n#BRANCH\n";
  LoadCurrent(t, text);
  std::size_t depth = 0;
  for (const StoreNode* node = project.root; node != nullptr; node = node->child) ++depth;
  EXPECT_EQ(depth, 200000U);
}

TEST_F(ProjectParseTest, AShelfWithAListTemplateOfAnOldVersionBecomesAList) {
  LoadText(t, "VERSION=105000\nNODE2=a\nTEMP=MyList.htm\nNODE2=b\nTEMP=shelf.htm\nNODE0=c\nTEMP=list.htm\n");
  EXPECT_EQ(root().kind, NodeKind::List);
  EXPECT_EQ(root().next->kind, NodeKind::Shelf);
  EXPECT_EQ(root().next->next->kind, NodeKind::Category);
}

TEST_F(ProjectParseTest, AShelfWithAListTemplateOfVersion105001StaysAShelf) {
  LoadText(t, "VERSION=105001\nNODE2=a\nTEMP=list.htm\n");
  EXPECT_EQ(root().kind, NodeKind::Shelf);
}

TEST_F(ProjectParseTest, VariablesKeepNullApartFromText) {
  LoadCurrent(t, "VAR=$A\nVAR=$B|x@@@y\nVAR=$C|\nVAR=$D|p|q\nVAR=|v\n");
  const UserVariable* v = project.variables;
  EXPECT_STREQ(v->name.get(), "$A");
  EXPECT_TRUE(v->value.isNull());
  v = v->next;
  EXPECT_STREQ(v->value.get(), "x\r\ny");
  v = v->next;
  EXPECT_STREQ(v->value.get(), "");
  v = v->next;
  EXPECT_STREQ(v->name.get(), "$D");
  EXPECT_STREQ(v->value.get(), "p|q");
  v = v->next;
  EXPECT_STREQ(v->name.get(), "");
  EXPECT_EQ(v, project.variablesTail);
}

TEST_F(ProjectParseTest, AVariablesValueIsCutAt4048Bytes) {
  LoadCurrent(t, "VAR=$A|" + std::string(4046, 'x') + "@@@y\n");
  EXPECT_EQ(project.variables->value.view(), std::string(4046, 'x') + "@@");
}

TEST_F(ProjectParseTest, SettingsGoToTheProject) {
  LoadCurrent(
      t, "STITLE=My Shop\nTAXF=5\nTAXD=1\nTAXO=2\nOMESSAGE=a@@@b\nCMESSAGE=c\nWEB=C:\\web\nCURR=EUR\nVO=7\nVC=8\n");
  EXPECT_STREQ(project.storeTitle.get(), "My Shop");
  EXPECT_STREQ(project.tax.freightTaxRate.get(), "5");
  EXPECT_EQ(project.tax.taxEnabled, 1);
  EXPECT_EQ(project.tax.taxOption, 2);
  EXPECT_STREQ(project.orderMessage.get(), "a\r\nb");
  EXPECT_STREQ(project.confirmMessage.get(), "c");
  EXPECT_STREQ(project.webDir.get(), "C:\\web");
  EXPECT_STREQ(project.currency.get(), "EUR");
  EXPECT_EQ(project.templateVersionOrder, 7);
  EXPECT_EQ(project.templateVersionConfirm, 0);
}

TEST_F(ProjectParseTest, TemplateNumber21IsDropped) {
  std::string text;
  for (int i = 1; i <= 21; ++i) text += "TPL=t" + std::to_string(i) + "\n";
  LoadCurrent(t, text);
  EXPECT_STREQ(project.templateNames[0].get(), "t1");
  EXPECT_STREQ(project.templateNames[19].get(), "t20");
}

TEST_F(ProjectParseTest, TemplatesAreCountedForEachLevel) {
  LoadCurrent(t, "TPL=a\nTPL=b\nNODE0=n\n#BRANCH\nTPL=c\n#EOB\nTPL=d\n");
  EXPECT_STREQ(project.templateNames[0].get(), "c");
  EXPECT_STREQ(project.templateNames[1].get(), "b");
  EXPECT_STREQ(project.templateNames[2].get(), "d");
}

TEST_F(ProjectParseTest, CardsAreAppendedAndMarkedInTheCatalogue) {
  CardEntry* visa = CardEntryInit(nullptr);
  visa->name.assign("Visa");
  t.config().cardCatalogue = visa;
  LoadCurrent(t, "CC=0:Visa\nCC=1:Own: Card\nCC=nothing\n");
  EXPECT_EQ(visa->selected, 1);
  const CardEntry* card = project.acceptedCards;
  EXPECT_STREQ(card->name.get(), "Visa");
  EXPECT_EQ(card->custom, 0);
  EXPECT_STREQ(card->next->name.get(), "Own: Card");
  EXPECT_EQ(card->next->custom, 1);
  EXPECT_EQ(card->next->prev, card);
  EXPECT_EQ(card->next->next, nullptr);
  EXPECT_EQ(project.currentCard, card->next);
}

TEST_F(ProjectParseTest, MethodNamesNeedACommaAndAnIndexUpToTwo) {
  for (int i = 0; i < 3; ++i) project.methodName[static_cast<std::size_t>(i)].assign("old");
  LoadCurrent(t, "FNAME=0,Air, fast\nFNAME=3,x\nFNAME=1\nFNAME=-1,x\nFNAME=2,\n");
  EXPECT_STREQ(project.methodName[0].get(), "Air, fast");
  EXPECT_STREQ(project.methodName[1].get(), "old");
  EXPECT_STREQ(project.methodName[2].get(), "");
}

TEST_F(ProjectParseTest, RuleWithoutAFreightLineIsIgnored) {
  LoadCurrent(t, "RULE=0,x\nNODE0=a\n#BRANCH\n$AU0,1,|1\n#EOB\nRULE=0,y\n");
  EXPECT_TRUE(project.regions->method[0]->rule.isNull());
}

TEST_F(ProjectParseTest, RuleGoesToTheRegionOfTheLastFreightLine) {
  LoadCurrent(t, "$AU0,1,|1\n$NZ0,1,|1\nRULE=2,a,b\nRULE=3,x\nRULE=1\nRULE=0,\n");
  const FreightRegion* nz = project.regions->next;
  EXPECT_STREQ(nz->method[2]->rule.get(), "a,b");
  EXPECT_TRUE(nz->method[1]->rule.isNull());
  EXPECT_STREQ(nz->method[0]->rule.get(), "");
  EXPECT_TRUE(project.regions->method[2]->rule.isNull());
}

class LayoutLine : public ProjectParseTest {
 protected:
  SchemeStyle* style = SchemeInit(nullptr);
  Scheme* scheme = SchemeInit(nullptr);

  void SetUp() override {
    style->name.assign("Plain");
    scheme->name.assign("Red");
    style->schemes = scheme;
    scheme->prev = style;
    t.config().schemeStyles = style;
  }
};

TEST_F(LayoutLine, NamesTheProjectsScheme) {
  LoadCurrent(t, "LAYOUT=Plain/Red\n");
  EXPECT_EQ(project.projectScheme, scheme);
  EXPECT_EQ(t.config().currentStyle, style);
}

TEST_F(LayoutLine, AnUnknownOneLeavesNoSchemeButMakesTheFirstCurrent) {
  LoadCurrent(t, "LAYOUT=Plain/Blue\n");
  EXPECT_EQ(project.projectScheme, nullptr);
  EXPECT_EQ(t.config().currentStyle, style);
  EXPECT_EQ(t.config().currentScheme, scheme);
}

TEST_F(LayoutLine, WithoutAnyCatalogueNothingIsFollowed) {
  t.config().schemeStyles = nullptr;
  LoadCurrent(t, "LAYOUT=Plain/Red\n");
  EXPECT_EQ(project.projectScheme, nullptr);
  EXPECT_EQ(t.config().currentScheme, nullptr);
  t.config().schemeStyles = style;
}

TEST_F(ProjectParseTest, MergingTakesTreeVariablesCardsAndOverwritingSettings) {
  LoadCurrent(t, "NODE0=Home\nVAR=$A|1\nCC=0:Visa\nSTITLE=Mine\nWEB=w\nTPL=a\nTPL=b\nCURR=EUR\n$AU0,1,|1\n");
  StoreNode* merged = ParseText(t,
                                "VERSION=100\nNODE0=More\n#BRANCH\nNODE1=Ball\n#EOB\nNODE1=Car\nVAR=$B|2\nCC=1:Own\n"
                                "STITLE=Theirs\nWEB=x\nTPL=c\nCURR=USD\n$NZ0,1,|1\nRULE=0,r\nFNAME=1,m\nTAXD=1\n"
                                "OMESSAGE=o\nLAYOUT=Plain/Red\nVO=3\n",
                                project.root, true);
  EXPECT_STREQ(merged->title.get(), "More");
  EXPECT_EQ(merged->parent, project.root);
  EXPECT_EQ(merged->prev, nullptr);
  EXPECT_EQ(merged->child->parent, merged);
  EXPECT_STREQ(merged->next->title.get(), "Car");
  EXPECT_STREQ(project.variables->next->name.get(), "$B");
  EXPECT_STREQ(project.acceptedCards->next->name.get(), "Own");
  EXPECT_STREQ(project.storeTitle.get(), "Mine");
  EXPECT_STREQ(project.webDir.get(), "w");
  EXPECT_STREQ(project.templateNames[0].get(), "c");
  EXPECT_STREQ(project.templateNames[1].get(), "b");
  EXPECT_STREQ(project.currency.get(), "USD");
  EXPECT_EQ(project.regions->next, nullptr);
  EXPECT_TRUE(project.regions->method[0]->rule.isNull());
  EXPECT_STREQ(project.methodName[1].get(), "m");
  EXPECT_EQ(project.tax.taxEnabled, 1);
  EXPECT_STREQ(project.orderMessage.get(), "o");
  EXPECT_EQ(project.fileVersion, 100);
  EXPECT_EQ(project.templateVersionOrder, 3);
  EXPECT_EQ(project.projectScheme, nullptr);
}

TEST_F(ProjectParseTest, MergedNodesOfAProductGetItsParent) {
  LoadCurrent(t, "NODE0=Home\n#BRANCH\nNODE1=Ball\n#EOB\n");
  StoreNode* merged = ParseText(t, "NODE1=Car\n", project.root->child, true);
  EXPECT_EQ(merged->parent, project.root);
}

TEST_F(ProjectParseTest, TheCountIsShownEveryTwelfthNodeOfALevel) {
  std::string text;
  for (int i = 0; i < 25; ++i) text += "NODE0=x\n";
  text += "#BRANCH\n";
  for (int i = 0; i < 12; ++i) text += "NODE1=y\n";
  LoadCurrent(t, text + "#EOB\n");
  EXPECT_EQ(t.screen.taskCounts, (std::vector<int>{12, 24, 37}));
}

TEST_F(ProjectParseTest, ADescriptionWithALineEndLosesItsSecondLine) {
  LoadCurrent(t, "NODE1=a\n");
  project.root->metaDescription.assign("one\r\ntwo\r\nCOST=3");
  const std::string saved = SaveText(t);
  EXPECT_NE(saved.find("DESC=one\r\ntwo\r\nCOST=3\n"), std::string::npos);
  LoadText(t, saved);
  EXPECT_STREQ(root().metaDescription.get(), "one");
  EXPECT_STREQ(root().cost.get(), "3");
}

TEST_F(ProjectParseTest, ABodyWithABareLfDoesTheSame) {
  LoadCurrent(t, "NODE1=a\n");
  project.root->body.assign("one\r\ntwo\nthree");
  LoadText(t, SaveText(t));
  EXPECT_STREQ(root().body.get(), "one\r\ntwo");
}

}  // namespace
}  // namespace varlo
