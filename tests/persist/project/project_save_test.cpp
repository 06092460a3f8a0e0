#include "persist/project/project_save.h"

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
using testing::HasSubstr;
using testing::Not;

const std::string kHeader = "TIME=1044072306\nVERSION=107001\nOWNER=Varlo PRO\n";
const std::string kGroup = "OMESSAGE=\nCMESSAGE=\nVO=0\nVC=0\nTAXD=0\nTAXO=0\nCURR=\n";

class ProjectSaveTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
};

TEST_F(ProjectSaveTest, AnEmptyProjectWritesHeaderAndSettingsOnly) { EXPECT_EQ(SaveText(t), kHeader + kGroup); }

TEST_F(ProjectSaveTest, ANodeIsWrittenInOrder) {
  StoreNode* node = AddProduct(project, "ti");
  node->status = kStatusDisabled;
  node->modified = 1;
  node->id = 77;
  node->displayTitle.assign("never");
  node->fileName.assign("fi");
  node->pageTitle.assign("pa");
  node->image.assign("im");
  node->imageLink.assign("li");
  node->metaKeywords.assign("ke");
  node->metaDescription.assign("de");
  node->body.assign("a\r\nb");
  node->cost.assign("co");
  node->productCode.assign("cd");
  node->templateName.assign("te");
  node->freight.assign("fr");
  node->weight.assign("we");
  node->tax.assign("ta");
  for (std::size_t i = 0; i < 6; ++i) {
    node->field[i].assign(std::string_view("f" + std::to_string(i)));
    node->label[i].assign(std::string_view("t" + std::to_string(i)));
  }
  EXPECT_EQ(SaveText(t), kHeader +
                             "NODE1=ti\nSTATUS=-2\nMOD=1\nFILE=fi\nPAGE=pa\nIMAGE=im\nLINK=li\nKEY=ke\nDESC=de\n"
                             "BODY=a@@@b\nCOST=co\nCODE=cd\nTEMP=te\nF=fr\nW=we\nX=ta\nF1=f0\nF2=f1\nF3=f2\nF4=f3\n"
                             "F5=f4\nF6=f5\nT1=t0\nT2=t1\nT3=t2\nT4=t3\nT5=t4\nT6=t5\n" +
                             kGroup);
}

TEST_F(ProjectSaveTest, NullAndEmptyTextsOfANodeAreLeftOut) {
  StoreNode* node = AddCategory(project, nullptr);
  node->cost.assign("");
  EXPECT_EQ(SaveText(t), kHeader + "NODE0=\nSTATUS=0\nMOD=0\n" + kGroup);
}

TEST_F(ProjectSaveTest, BranchesAreMarkedAndChainsAreNotSaved) {
  StoreNode* home = AddCategory(project, "a");
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "b", home);
  StoreNode* ball = AddProduct(project, "c", shelf);
  AddCategory(project, "d", home);
  StoreNode* chained = project.nodes.allocate();
  chained->title.assign("hidden");
  chained->kind = NodeKind::Product;
  StoreNodeInsert(t.program, chained, ball);
  const std::string zero = "STATUS=0\nMOD=0\n";
  EXPECT_EQ(SaveText(t), kHeader + "NODE0=a\n" + zero + "#BRANCH\nNODE2=b\n" + zero + "#BRANCH\nNODE1=c\n" + zero +
                             "#EOB\nNODE0=d\n" + zero + "#EOB\n" + kGroup);
}

TEST_F(ProjectSaveTest, SettingsFollowInOrder) {
  project.templateNames[0].assign("a.htm");
  project.templateNames[2].assign("");
  UserVariable* variable = UserVariableInit(nullptr);
  variable->name.assign("$|A|");
  variable->value.assign("x\r\ny");
  UserVariableAppend(project, variable);
  UserVariableAppend(project, UserVariableInit(nullptr));
  FreightRegion* region = FreightRegionMake();
  region->code.assign("AU");
  region->regionValue.assign("10");
  region->method[0]->value[0].assign("1");
  region->method[0]->active = 1;
  region->method[0]->rule.assign("r,s");
  region->method[2]->rule.assign("");
  region->method[2]->active = -1;
  RecordAppend(project.regions, project.regionsTail, region);
  project.webDir.assign("C:\\web");
  project.storeTitle.assign("Shop");
  project.tax = {.taxEnabled = 1, .taxOption = 1, .freightTaxRate = Text("5")};
  project.orderMessage.assign("o\r\np");
  project.confirmMessage.assign("c");
  project.templateVersionOrder = 3;
  project.currency.assign("EUR");
  project.methodName[0].assign("Air");
  project.methodName[2].assign("");
  CardEntry* card = CardEntryInit(nullptr);
  card->name.assign("Visa");
  card->custom = 1;
  project.acceptedCards = card;
  SchemeStyle* style = SchemeInit(nullptr);
  style->name.assign("Plain");
  style->schemes = SchemeInit(nullptr);
  style->schemes->prev = style;
  style->schemes->name.assign("Red");
  t.config().schemeStyles = style;
  project.projectScheme = style->schemes;

  EXPECT_EQ(SaveText(t), kHeader +
                             "TPL=a.htm\nTPL=\nVAR=$A|x@@@y\nVAR=|\n"
                             "$AU0,1,,,,,,,,,,,,10,|1\nRULE=0,r,s\n$AU1,,,,,,,,,,,,,10,|0\n$AU2,,,,,,,,,,,,,10,|-1\n"
                             "RULE=2,\nLAYOUT=Plain/Red\nWEB=C:\\web\nSTITLE=Shop\nTAXF=5\nOMESSAGE=o@@@p\n"
                             "CMESSAGE=c\nVO=3\nVC=0\nTAXD=1\nTAXO=1\nCURR=EUR\nFNAME=0,Air\nFNAME=2,\nCC=1:Visa\n");
  EXPECT_STREQ(variable->name.get(), "$A");
}

TEST_F(ProjectSaveTest, ASchemeWithoutANameIsNotWritten) {
  t.config().schemeStyles = SchemeInit(nullptr);
  project.projectScheme = t.config().schemeStyles;
  EXPECT_THAT(SaveText(t), Not(HasSubstr("LAYOUT=")));
}

TEST_F(ProjectSaveTest, AVcOfTheOldFileIsWrittenAsZero) {
  LoadCurrent(t, "VC=9\n");
  EXPECT_THAT(SaveText(t), HasSubstr("VC=0\n"));
}

TEST_F(ProjectSaveTest, ALongBodyLosesItsTailAndTakesTheNextLineOntoItself) {
  StoreNode* node = AddProduct(project, "a");
  node->body.assign(std::string_view(std::string(4000, 'x')));
  node->cost.assign("9");
  const std::string saved = SaveText(t);
  EXPECT_THAT(saved, HasSubstr("\nBODY=" + std::string(3090, 'x') + "COST=9\n"));
  LoadText(t, saved);
  EXPECT_EQ(project.root->body.view(), std::string(3090, 'x') + "COST=9");
  EXPECT_TRUE(project.root->cost.isNull());
}

TEST_F(ProjectSaveTest, ABodyOf3089BytesIsTheLongestThatKeepsItsLineEnd) {
  StoreNode* node = AddProduct(project, "a");
  node->body.assign(std::string_view(std::string(3089, 'x')));
  node->cost.assign("9");
  EXPECT_THAT(SaveText(t), HasSubstr("\nBODY=" + std::string(3089, 'x') + "\nCOST=9\n"));
}

TEST_F(ProjectSaveTest, AMarkThatDoesNotFitItsByteIsWrittenAsWhatIsLeftOfIt) {
  LoadCurrent(t, "NODE1=a\nMOD=300\nNODE1=b\nMOD=200\n");
  EXPECT_THAT(SaveText(t), HasSubstr("NODE1=a\nSTATUS=0\nMOD=44\nNODE1=b\nSTATUS=0\nMOD=-56\n"));
}

TEST_F(ProjectSaveTest, ADeepTreeSaves) {
  StoreNode* parent = nullptr;
  for (int i = 0; i < 200000; ++i) {
    StoreNode* node = project.nodes.allocate();
    node->parent = node->prev = parent;
    (parent == nullptr ? project.root : parent->child) = node;
    parent = node;
  }
  const std::string saved = SaveText(t);
  EXPECT_EQ(saved.size(), kHeader.size() + kGroup.size() + 200000 * 22 + 199999 * (8 + 5));
}

TEST_F(ProjectSaveTest, TheCountGoesByLists) {
  for (int i = 0; i < 13; ++i) AddCategory(project, "x");
  for (int i = 0; i < 24; ++i) AddProduct(project, "y", project.root);
  SaveText(t);
  EXPECT_EQ(t.screen.taskCounts, (std::vector<int>{12, 24, 12}));
}

TEST_F(ProjectSaveTest, WithoutAProjectFileNothingHappens) {
  project.dirty = 1;
  EXPECT_FALSE(ProjectSave(t.program));
  EXPECT_TRUE(t.files.log.empty());
  EXPECT_TRUE(t.screen.tasks.empty());
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(ProjectSaveTest, RunsInItsDialogWithTheWaitCursor) {
  SaveText(t);
  EXPECT_EQ(t.screen.tasks, std::vector<std::string>{"Varlo PRO: Saving store project. Please wait........"});
  EXPECT_EQ(t.screen.waitCursor, (std::vector<bool>{true, false}));
}

TEST_F(ProjectSaveTest, AFileThatCannotBeCreatedIsToldAndStaysDirty) {
  project.dirty = 1;
  project.projectFile.assign("C:\\nowhere\\a.stp");
  EXPECT_FALSE(ProjectSave(t.program));
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0], (ShownBox{"S101: File Write Error", "Error", Buttons::Ok, Icon::None}));
  EXPECT_EQ(project.dirty, 1);
}

// A disk that is full: the first `writes` writes to the project's file go through, what comes behind is lost.
void fillDisk(TestProgram& t, int writes) {
  t.files.shallFail = [writes](const std::string& operation) mutable {
    return operation == std::string("write ") + kProjectPath && writes-- <= 0;
  };
}

TEST_F(ProjectSaveTest, AFileThatLosesItsEndIsToldAndStaysDirty) {
  AddCategory(project, "a");
  project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  project.orderTemplate.assign("order");
  project.dirty = 1;
  fillDisk(t, 0);
  t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Template");
  project.projectFile.assign(kProjectPath);
  EXPECT_FALSE(ProjectSave(t.program));
  EXPECT_EQ(t.files.content(kProjectPath), "");
  EXPECT_EQ(project.dirty, 1);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].title, "Error");
  EXPECT_EQ(t.screen.boxes[0].text, std::string("The file '") + kProjectPath +
                                        "' could not be written completely.  The disk may be full: please make "
                                        "room and save again.");
  EXPECT_EQ(t.files.content("Projects\\Shop\\Template\\order.htm"), "order") << "the save goes on to its end";
}

TEST_F(ProjectSaveTest, TheMessageOfALostEndNamesTheNewestBackup) {
  project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  t.files.put("Projects\\Shop\\Backup\\Shop.stp.2", "two");
  t.files.put("Projects\\Shop\\Backup\\Shop.stp.3", "three");
  fillDisk(t, 0);
  SaveText(t);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_THAT(t.screen.boxes[0].text, testing::EndsWith("\r\n\r\nThe version saved before lies in "
                                                        "'C:\\Varlo\\Projects\\Shop\\Backup\\Shop.stp.2'."));
}

TEST_F(ProjectSaveTest, AnEndThatIsLostInTheLastBlockOfALongFileIsSeen) {
  for (int i = 0; i < 3000; ++i) AddCategory(project, "A category with a title of some length")->body.assign("text");
  fillDisk(t, 2);
  const std::string saved = SaveText(t);
  EXPECT_GT(saved.size(), 100000U);
  EXPECT_FALSE(saved.ends_with(kGroup));
  EXPECT_EQ(t.screen.boxes.size(), 1U);
}

TEST_F(ProjectSaveTest, AnUnchangedProjectThatLosesItsEndCountsAsChanged) {
  fillDisk(t, 0);
  SaveText(t);
  EXPECT_EQ(project.dirty, 1) << "leaving the program must ask";
}

TEST_F(ProjectSaveTest, TheNextSaveThatSucceedsMakesUpForIt) {
  fillDisk(t, 0);
  SaveText(t);
  t.files.shallFail = nullptr;
  EXPECT_TRUE(ProjectSave(t.program));
  EXPECT_EQ(project.dirty, 0);
  EXPECT_TRUE(project.cutFile.isNull());
  EXPECT_EQ(t.screen.boxes.size(), 1U);
}

TEST_F(ProjectSaveTest, ReadingWhatWasWrittenAndWritingItAgainGivesTheSameBytes) {
  LoadCurrent(t,
              "NODE0=Home\nBODY=a@@@b\n#BRANCH\nNODE1=Ball\nCOST=5\n#EOB\nTPL=x\nVAR=$A|1\n$AU0,1,2,|1\nRULE=0,r\n"
              "WEB=w\nSTITLE=s\nTAXF=5\nFNAME=0,a\nCC=1:Visa\n");
  const std::string first = SaveText(t);
  LoadText(t, first);
  EXPECT_EQ(SaveText(t), first);
}

}  // namespace
}  // namespace varlo
