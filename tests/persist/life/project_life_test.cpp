#include "persist/life/project_life.h"

#include <gtest/gtest.h>

#include "core/program/project_close.h"
#include "core/program/scheme.h"
#include "persist/installation/config_file.h"
#include "persist/life/start_up.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kShop = "C:\\Varlo\\Projects\\Shop";
const ShownBox kBadName{"Invalid Project Name.  The name must not include forward/back slash characters or commas.",
                        "Error", Buttons::Ok, Icon::Stop};
const ShownBox kSaveQuestion{"The current project has changed.  Do you wish to save your changes?",
                             "Varlo PRO - Save Store Confirmation", Buttons::YesNo, Icon::Question};
const ShownBox kOrderError{"ERROR M101: Copying 'template\\order.dat' template", "Error"};
const ShownBox kConfirmError{"ERROR M101: Copying 'template\\confirm.dat' template", "Error"};
const ShownBox kWriteError{"S101: File Write Error", "Error"};
const ShownBox kOpenError{"ERROR S105: Unable to open project file", "Error"};
const char* const kLoading = "Varlo PRO: Loading store project. Please wait........";
const char* const kSaving = "Varlo PRO: Saving store project. Please wait........";

ShownBox readError(const std::string& path) { return {"S103: Unable to read project file '" + path + "'", "Error"}; }

class ProjectLifeTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void SetUp() override {
    t.files.putFolder("Projects");
    t.files.put("template\\order.dat", "shipped order");
    t.files.put("template\\confirm.dat", "shipped confirm");
  }
  std::string content(std::string_view path) { return t.files.content(path).value_or("(none)"); }
  std::string inProject(std::string_view name) { return content(kShop + "\\Template\\" + std::string(name)); }

  // Opens the project "Shop" with one node, and forgets what was recorded meanwhile.
  void openShop() {
    LoadCurrent(t, "NODE0=Home\nSTITLE=Shop\n");
    forgetRecords();
  }
  void forgetRecords() {
    t.view.calls.clear();
    t.files.log.clear();
    t.screen.tasks.clear();
  }
  // A catalogue of one scheme, which is the current one.
  void useScheme(const char* directory) {
    SchemeStyle* style = t.config().schemeStyles = SchemeInit(nullptr);
    Scheme* scheme = style->schemes = SchemeInit(nullptr);
    scheme->prev = style;
    scheme->directory.assign(directory);
    t.config().currentScheme = scheme;
  }
  std::vector<std::string> lastCalls(std::size_t count) {
    const std::vector<std::string>& calls = t.view.calls;
    return {calls.end() - static_cast<std::ptrdiff_t>(std::min(count, calls.size())), calls.end()};
  }
  // The lines of the log that begin so.
  std::vector<std::string> logged(std::string_view start) {
    std::vector<std::string> lines;
    for (const std::string& line : t.files.log) {
      if (line.starts_with(start)) lines.push_back(line);
    }
    return lines;
  }
  void failAt(const std::string& operation) {
    t.files.shallFail = [operation](const std::string& line) { return line.starts_with(operation); };
  }
  void expectRefused(const char* name) {
    t.screen.boxes.clear();
    EXPECT_EQ(ProjectCreate(t.program, name), -1) << name;
    EXPECT_THAT(t.screen.boxes, ElementsAre(kBadName)) << name;
  }
};

using ProjectCreateTest = ProjectLifeTest;

TEST_F(ProjectCreateTest, ANameThatIsNoFolderOfItsOwnIsRefused) {
  for (const char* name : {"..", ".", "", "C:", "C:Shop", "..."}) {
    t.screen.boxes.clear();
    EXPECT_EQ(ProjectCreate(t.program, name), -1) << name;
    EXPECT_THAT(t.screen.boxes, ElementsAre(kBadName)) << name;
    EXPECT_THAT(t.files.log, IsEmpty()) << name;
  }
}

TEST_F(ProjectCreateTest, ANullNameGivesZeroAndChangesNothing) {
  openShop();
  project.webDir.assign("web");
  EXPECT_EQ(ProjectCreate(t.program, nullptr), 0);
  EXPECT_STREQ(project.webDir.get(), "web");
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(t.view.calls, IsEmpty());
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(ProjectCreateTest, ANameWithASlashABackSlashOrACommaIsRefused) {
  for (const char* name : {"a/b", "a\\b", "a,b", "/", "\\", ","}) expectRefused(name);
}

TEST_F(ProjectCreateTest, ARefusedNameChangesNothing) {
  openShop();
  project.webDir.assign("web");
  expectRefused("a,b");
  EXPECT_STREQ(project.webDir.get(), "web");
  EXPECT_EQ(project.projectDir.view(), kShop);
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(t.view.calls, IsEmpty());
}

TEST_F(ProjectCreateTest, MakesTheFoldersOfTheProject) {
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 1);
  EXPECT_THAT(logged("makeFolder"), ElementsAre("makeFolder " + kShop, "makeFolder " + kShop + "\\Web",
                                                "makeFolder " + kShop + "\\Template"));
  EXPECT_EQ(t.files.makeFolder(kShop + "\\Web"), MakeFolderResult::Exists);
  EXPECT_EQ(t.files.makeFolder(kShop + "\\Template"), MakeFolderResult::Exists);
  EXPECT_EQ(t.files.makeFolder(kShop + "\\Backup"), MakeFolderResult::Made) << "the first backup makes that";
}

TEST_F(ProjectCreateTest, FoldersThatAreThereKeepTheirFiles) {
  t.files.put(kShop + "\\Web\\index.htm", "old page");
  t.files.put(kShop + "\\Template\\special.htm", "old special");
  t.files.put(kShop + "\\Template\\order.htm", "old order");
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 1);
  EXPECT_EQ(content(kShop + "\\Web\\index.htm"), "old page");
  EXPECT_EQ(inProject("special.htm"), "old special");
  EXPECT_EQ(inProject("order.htm"), "shipped order");
}

TEST_F(ProjectCreateTest, FoldersThatCanNotBeMadeDoNotStopIt) {
  failAt("makeFolder");
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kOrderError, kConfirmError)) << "the templates have no folder to go to";
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
}

TEST_F(ProjectCreateTest, NamesFileAndFolderAndReleasesTheWebFolder) {
  project.webDir.assign("C:\\old\\web");
  project.projectDir.assign("C:\\old");
  project.projectFile.assign("C:\\old\\old.stp");
  ProjectCreate(t.program, "My Shop v1.2");
  EXPECT_STREQ(project.projectFile.get(), "C:\\Varlo\\Projects\\My Shop v1.2\\My Shop v1.2.stp");
  EXPECT_STREQ(project.projectDir.get(), "C:\\Varlo\\Projects\\My Shop v1.2");
  EXPECT_TRUE(project.webDir.isNull());
}

TEST_F(ProjectCreateTest, ANewProjectHasARootAndTheShippedForms) {
  project.storeTitle.assign("Toys & More");
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 1);
  EXPECT_EQ(TreeText(project), "Toys & More");
  EXPECT_EQ(inProject("order.htm"), "shipped order");
  EXPECT_EQ(inProject("confirm.htm"), "shipped confirm");
  EXPECT_STREQ(project.orderTemplate.get(), "shipped order");
  EXPECT_STREQ(project.confirmTemplate.get(), "shipped confirm");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.screen.tasks, IsEmpty());
  ExpectPlainTree(project);
}

TEST_F(ProjectCreateTest, ANewProjectShowsTreeListFormAndMenu) {
  project.storeTitle.assign("Shop");
  ProjectCreate(t.program, "Shop");
  EXPECT_THAT(t.view.calls,
              ElementsAre("clearTree", "fillTree", "loadItemList Shop", "loadForm", "refreshCommandStates"));
}

TEST_F(ProjectCreateTest, ItsFormsAreThoseOfTheTemplateSetWhenThatHasThem) {
  useScheme("Blue");
  t.files.put("template\\Blue\\order.htm", "blue order");
  t.files.put("template\\Blue\\category.htm", "blue category");
  ProjectCreate(t.program, "Shop");
  EXPECT_STREQ(project.orderTemplate.get(), "blue order");
  EXPECT_STREQ(project.confirmTemplate.get(), "shipped confirm");
  EXPECT_EQ(inProject("category.htm"), "blue category");
}

TEST_F(ProjectCreateTest, AfterACloseNoTemplateSetIsCopied) {
  useScheme("Blue");
  t.files.put("template\\Blue\\category.htm", "blue category");
  t.files.put("template\\category.htm", "plain category");
  ProjectClose(t.program);
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 1);
  EXPECT_EQ(inProject("order.htm"), "shipped order");
  EXPECT_EQ(inProject("category.htm"), "(none)");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(ProjectCreateTest, AMissingFormIsToldAndTheProjectIsMadeAllTheSame) {
  t.files.remove("template\\order.dat");
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kOrderError));
  EXPECT_STREQ(project.confirmTemplate.get(), "shipped confirm");
}

TEST_F(ProjectCreateTest, TheProjectFileIsNotThereBeforeTheFirstSave) {
  project.storeTitle.assign("Toys");
  ProjectCreate(t.program, "Shop");
  EXPECT_EQ(content(kProjectPath), "(none)");
  EXPECT_TRUE(ProjectSaveNow(t.program));
  EXPECT_THAT(content(kProjectPath), testing::HasSubstr("\nNODE0=Toys\n"));
}

TEST_F(ProjectCreateTest, AnExistingProjectIsOpenedInstead) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\nNODE0=More\nSTITLE=Stored\nWEB=stored web\n");
  t.files.put(kShop + "\\Template\\order.htm", "own order");
  project.storeTitle.assign("Of the wizard");
  project.webDir.assign("of the wizard");
  EXPECT_EQ(ProjectCreate(t.program, "Shop"), 0);
  EXPECT_EQ(TreeText(project), "Home,More");
  EXPECT_STREQ(project.storeTitle.get(), "Stored");
  EXPECT_STREQ(project.webDir.get(), "stored web");
  EXPECT_EQ(inProject("order.htm"), "own order");
  EXPECT_STREQ(project.orderTemplate.get(), "own order");
  EXPECT_THAT(t.screen.tasks, ElementsAre(kLoading));
  EXPECT_THAT(t.screen.boxes, IsEmpty()) << "nothing tells the user";
  EXPECT_THAT(logged("copy"), IsEmpty());
  ExpectPlainTree(project);
}

TEST_F(ProjectCreateTest, AnExistingProjectIsFoundWhateverTheCaseOfItsName) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\n");
  EXPECT_EQ(ProjectCreate(t.program, "SHOP"), 0);
  EXPECT_EQ(TreeText(project), "Home");
}

TEST_F(ProjectCreateTest, AnExistingProjectIsShownAroundItsLoad) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\n");
  ProjectCreate(t.program, "Shop");
  ASSERT_GT(t.view.calls.size(), 5U);
  EXPECT_EQ(t.view.calls.front(), "clearTree");
  EXPECT_THAT(t.view.calls, testing::Contains("setWindowTitle Varlo PRO - Shop"));
  EXPECT_THAT(lastCalls(4), ElementsAre("fillTree", "loadItemList Home", "loadForm", "refreshCommandStates"));
}

using ProjectInitNewTest = ProjectLifeTest;

TEST_F(ProjectInitNewTest, TheRootIsACategoryWithTheTitleOfTheStore) {
  t.config().uid = 41;
  project.storeTitle.assign("Toys");
  ProjectInitNew(t.program);
  const StoreNode* root = project.root;
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->kind, NodeKind::Category);
  EXPECT_STREQ(root->title.get(), "Toys");
  EXPECT_EQ(root->id, 42);
  EXPECT_EQ(t.config().uid, 42);
  EXPECT_STREQ(root->fileName.get(), "42.htm");
  EXPECT_EQ(root->next, nullptr);
  EXPECT_EQ(root->child, nullptr);
  EXPECT_EQ(project.currentNode, root);
  EXPECT_EQ(project.treeNode, root);
  ExpectPlainTree(project);
}

TEST_F(ProjectInitNewTest, TheFirstNodeOfAFreshInstallationIsNumberOne) {
  ProjectInitNew(t.program);
  EXPECT_EQ(project.root->id, 1);
  EXPECT_STREQ(project.root->fileName.get(), "1.htm");
}

TEST_F(ProjectInitNewTest, TheTitleIsACopy) {
  project.storeTitle.assign("Toys");
  ProjectInitNew(t.program);
  project.root->title.assign("Renamed");
  EXPECT_STREQ(project.storeTitle.get(), "Toys");
}

TEST_F(ProjectInitNewTest, WithoutATitleOfTheStoreTheRootHasNone) {
  ProjectInitNew(t.program);
  EXPECT_TRUE(project.root->title.isNull());
}

TEST_F(ProjectInitNewTest, EmptiesTheTree) {
  StoreNode* home = AddCategory(project, "Home");
  Select(project, AddProduct(project, "Ball", home));
  AddCategory(project, "More");
  project.dragNode = project.dragList = home;
  project.storeTitle.assign("New");
  ProjectInitNew(t.program);
  EXPECT_EQ(TreeText(project), "New");
  EXPECT_EQ(project.nodes.size(), 1U);
  EXPECT_EQ(project.dragNode, nullptr);
  EXPECT_EQ(project.dragList, nullptr);
  ExpectPlainTree(project);
}

TEST_F(ProjectInitNewTest, LeavesTheSettingsOfTheProject) {
  LoadCurrent(t, "NODE0=Home\nVAR=$A|1\nCC=1:Visa\n$AU0,1,|1\nWEB=w\n");
  ProjectInitNew(t.program);
  EXPECT_NE(project.variables, nullptr);
  EXPECT_NE(project.acceptedCards, nullptr);
  EXPECT_NE(project.regions, nullptr);
  EXPECT_STREQ(project.webDir.get(), "w");
}

TEST_F(ProjectInitNewTest, ClearsTheTreeThenShowsTheNewOne) {
  project.storeTitle.assign("Toys");
  ProjectInitNew(t.program);
  EXPECT_THAT(t.view.calls, ElementsAre("clearTree", "fillTree", "loadItemList Toys"));
}

TEST_F(ProjectInitNewTest, TheFolderOfTheProjectIsThatOfItsFile) {
  project.projectFile.assign(kProjectPath);
  project.projectDir.assign("C:\\old");
  ProjectInitNew(t.program);
  EXPECT_EQ(project.projectDir.view(), kShop);
}

using ProjectCopyFormTemplatesTest = ProjectLifeTest;

TEST_F(ProjectCopyFormTemplatesTest, WithoutAFolderOfTheProjectNothingHappens) {
  useScheme("");
  ProjectCopyFormTemplates(t.program);
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(ProjectCopyFormTemplatesTest, TheFormsComeFirstThenTheSetOfTheCurrentScheme) {
  openShop();
  useScheme("Blue");
  ProjectCopyFormTemplates(t.program);
  const std::string to = " to " + kShop + "\\Template\\";
  std::vector<std::string> copies{"copy C:\\Varlo\\template\\order.dat" + to + "order.htm",
                                  "copy C:\\Varlo\\template\\confirm.dat" + to + "confirm.htm"};
  for (const char* name : {"category.htm", "product.htm", "shelf.htm", "list.htm", "order.htm", "confirm.htm"}) {
    copies.push_back(std::string("copy C:\\Varlo\\template\\Blue\\") + name + to + name);
  }
  EXPECT_EQ(t.files.log, copies);
}

TEST_F(ProjectCopyFormTemplatesTest, OverwritesTheFormsAndLeavesTheOthers) {
  openShop();
  for (const char* name : {"order.htm", "confirm.htm", "shelf.htm"})
    t.files.put(kShop + "\\Template\\" + name, "own");
  ProjectCopyFormTemplates(t.program);
  EXPECT_EQ(inProject("order.htm"), "shipped order");
  EXPECT_EQ(inProject("confirm.htm"), "shipped confirm");
  EXPECT_EQ(inProject("shelf.htm"), "own");
}

TEST_F(ProjectCopyFormTemplatesTest, AMissingOrderFormIsToldAndTheRestGoesOn) {
  openShop();
  useScheme("Blue");
  t.files.remove("template\\order.dat");
  t.files.put("template\\Blue\\shelf.htm", "blue shelf");
  ProjectCopyFormTemplates(t.program);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kOrderError));
  EXPECT_EQ(inProject("confirm.htm"), "shipped confirm");
  EXPECT_EQ(inProject("shelf.htm"), "blue shelf");
}

TEST_F(ProjectCopyFormTemplatesTest, AMissingConfirmationPageIsToldAndTheRestGoesOn) {
  openShop();
  useScheme("Blue");
  t.files.remove("template\\confirm.dat");
  t.files.put("template\\Blue\\shelf.htm", "blue shelf");
  ProjectCopyFormTemplates(t.program);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kConfirmError));
  EXPECT_EQ(inProject("order.htm"), "shipped order");
  EXPECT_EQ(inProject("shelf.htm"), "blue shelf");
}

TEST_F(ProjectCopyFormTemplatesTest, EachFormThatCanNotBeCopiedIsTold) {
  openShop();
  failAt("copy");
  ProjectCopyFormTemplates(t.program);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kOrderError, kConfirmError));
}

using ProjectOpenPathTest = ProjectLifeTest;

TEST_F(ProjectOpenPathTest, OpensAProject) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\n#BRANCH\nNODE1=Ball\n#EOB\n");
  EXPECT_EQ(ProjectOpenPath(t.program, kProjectPath, false), 1);
  EXPECT_EQ(TreeText(project), "Home(Ball)");
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
  EXPECT_EQ(project.projectDir.view(), kShop);
  EXPECT_EQ(project.dirty, 0);
  EXPECT_THAT(t.screen.tasks, ElementsAre(kLoading));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_EQ(t.files.openHandles(), 0U);
  ExpectPlainTree(project);
}

TEST_F(ProjectOpenPathTest, APathWithoutADotIsThatOfAProjectFile) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\n");
  EXPECT_EQ(ProjectOpenPath(t.program, kShop + "\\Shop", false), 1);
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
}

TEST_F(ProjectOpenPathTest, ADotInTheNameOfAFolderCounts) {
  t.files.put("C:\\a.b\\store", "VERSION=107001\nNODE0=Home\n");
  EXPECT_EQ(ProjectOpenPath(t.program, "C:\\a.b\\store", false), 1);
  EXPECT_STREQ(project.projectFile.get(), "C:\\a.b\\store");
}

TEST_F(ProjectOpenPathTest, ADotInTheNameOfAFolderLeavesAProjectFileUnfound) {
  t.files.put("C:\\a.b\\store.stp", "VERSION=107001\nNODE0=Home\n");
  EXPECT_EQ(ProjectOpenPath(t.program, "C:\\a.b\\store", false), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\a.b\\store"), kOpenError));
}

TEST_F(ProjectOpenPathTest, AnOpenedProjectIsShownFromItsRoot) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\n");
  ProjectOpenPath(t.program, kProjectPath, false);
  EXPECT_THAT(lastCalls(5),
              ElementsAre("clearTree", "fillTree", "loadItemList Home", "loadVariableList", "loadForm"));
}

TEST_F(ProjectOpenPathTest, AnEmptyProjectIsOpenedToo) {
  t.files.put(kProjectPath, "VERSION=107001\n");
  EXPECT_EQ(ProjectOpenPath(t.program, kProjectPath, false), 1);
  EXPECT_EQ(project.root, nullptr);
  EXPECT_THAT(lastCalls(3), ElementsAre("loadItemList -", "loadVariableList", "loadForm"));
}

TEST_F(ProjectOpenPathTest, TheOpenProjectCanBeOpenedAgainByItsOwnPath) {
  openShop();
  AddCategory(project, "Unsaved");
  EXPECT_EQ(ProjectOpenPath(t.program, project.projectFile.view(), false), 1);
  EXPECT_EQ(TreeText(project), "Home");
}

TEST_F(ProjectOpenPathTest, AProjectThatMigratesCountsAsChanged) {
  t.files.put(kProjectPath, "VERSION=103000\nNODE0=Home\n");
  EXPECT_EQ(ProjectOpenPath(t.program, kProjectPath, false), 1);
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(ProjectOpenPathTest, AFailureIsToldTwiceAndTheOldTreeStaysWithoutAFile) {
  openShop();
  EXPECT_EQ(ProjectOpenPath(t.program, "C:\\gone.stp", false), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp"), kOpenError));
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_THAT(t.view.calls, ElementsAre("loadForm", "refreshCommandStates"));
  ExpectPlainTree(project);
}

TEST_F(ProjectOpenPathTest, AfterAFailureASaveHasNoFileAndTheNextOpenWorks) {
  openShop();
  const std::string before = content(kProjectPath);
  ProjectOpenPath(t.program, "C:\\gone.stp", false);
  AddCategory(project, "Unsaved");
  EXPECT_FALSE(ProjectSaveNow(t.program));
  EXPECT_EQ(content(kProjectPath), before);
  EXPECT_EQ(ProjectOpenPath(t.program, kProjectPath, false), 1);
  EXPECT_EQ(TreeText(project), "Home");
}

TEST_F(ProjectOpenPathTest, AnEmptyPathFails) {
  EXPECT_EQ(ProjectOpenPath(t.program, "", false), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError(".stp"), kOpenError));
  EXPECT_TRUE(project.projectFile.isNull());
}

TEST_F(ProjectOpenPathTest, AMissingFileCanBeMadeNewInstead) {
  openShop();
  EXPECT_EQ(ProjectOpenPath(t.program, "C:\\gone.stp", true), 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp")));
  EXPECT_EQ(TreeText(project), "Shop") << "the title of the store that was open";
  EXPECT_THAT(t.view.calls, ElementsAre("clearTree", "fillTree", "loadItemList Shop"));
  ExpectPlainTree(project);
}

TEST_F(ProjectOpenPathTest, AFileThatIsThereIsNotMadeNew) {
  t.files.put(kProjectPath, "VERSION=107001\nNODE0=Home\n");
  EXPECT_EQ(ProjectOpenPath(t.program, kProjectPath, true), 1);
  EXPECT_EQ(TreeText(project), "Home");
}

TEST_F(ProjectOpenPathTest, AtStartAConfiguredProjectThatIsGoneGivesOneMessage) {
  t.files.put("config.ini", "varlo=http://server\nfile=C:\\gone.stp\n");
  ConfigRead(t.program, "config.ini");
  ProjectLoad(t.program);
  PostFirstCommand(t.program);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp")));
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_THAT(t.screen.posted, ElementsAre(Command::NewStore));
}

class ProjectOpenDialogTest : public ProjectLifeTest {
 protected:
  void SetUp() override {
    ProjectLifeTest::SetUp();
    t.files.put("Projects\\Other\\Other.stp", "VERSION=107001\nNODE0=Other\n");
    openShop();
  }
  // The user renames the store without saving.
  void change() {
    project.storeTitle.assign("Changed");
    project.dirty = 1;
  }
  int chooseOther() {
    t.screen.files.emplace_back("C:\\Varlo\\Projects\\Other\\Other.stp");
    return ProjectOpenDialog(t.program);
  }
};

TEST_F(ProjectOpenDialogTest, TheChooserShowsProjects) {
  ProjectOpenDialog(t.program);
  ASSERT_EQ(t.screen.fileRequests.size(), 1U);
  const FileChooserRequest& request = t.screen.fileRequests[0];
  EXPECT_EQ(request.folder, "C:\\Varlo\\Projects");
  EXPECT_EQ(request.title, "Open Project");
  EXPECT_EQ(request.filter, "Store Project (*.stp)$*.stp$$");
  EXPECT_EQ(request.extension, "stp");
  EXPECT_TRUE(request.mustExist);
}

TEST_F(ProjectOpenDialogTest, CancelInTheChooserChangesNothing) {
  change();
  EXPECT_EQ(ProjectOpenDialog(t.program), 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty()) << "the question comes after the choice";
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(t.view.calls, IsEmpty());
  EXPECT_EQ(project.dirty, 1);
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
}

TEST_F(ProjectOpenDialogTest, OpensTheChosenProject) {
  EXPECT_EQ(chooseOther(), 1);
  EXPECT_EQ(TreeText(project), "Other");
  EXPECT_EQ(project.dirty, 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty()) << "nothing had changed";
  EXPECT_THAT(t.files.log, IsEmpty());
}

TEST_F(ProjectOpenDialogTest, OnYesTheOldProjectIsSavedWithABackupBeforeTheNewOneIsLoaded) {
  change();
  const std::string before = content(kProjectPath);
  t.screen.answers = {Answer::Yes};
  EXPECT_EQ(chooseOther(), 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveQuestion));
  EXPECT_THAT(t.screen.tasks, ElementsAre(kSaving, kLoading));
  EXPECT_THAT(content(kProjectPath), testing::HasSubstr("\nSTITLE=Changed\n"));
  EXPECT_EQ(content(kShop + "\\Backup\\Shop.stp.1"), before);
  EXPECT_EQ(TreeText(project), "Other");
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(ProjectOpenDialogTest, OnNoTheChangesAreDroppedAndTheMarkStays) {
  change();
  const std::string before = content(kProjectPath);
  t.screen.answers = {Answer::No};
  EXPECT_EQ(chooseOther(), 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveQuestion));
  EXPECT_EQ(content(kProjectPath), before);
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_EQ(TreeText(project), "Other");
  EXPECT_EQ(project.dirty, 1) << "neither the question nor the load touches it";
}

TEST_F(ProjectOpenDialogTest, ASaveThatFailsDoesNotStopTheOpening) {
  change();
  failAt("create");
  t.screen.answers = {Answer::Yes};
  EXPECT_EQ(chooseOther(), 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveQuestion, kWriteError));
  EXPECT_EQ(TreeText(project), "Other");
}

TEST_F(ProjectOpenDialogTest, AChosenFileThatCanNotBeReadLeavesNoProject) {
  t.screen.files.emplace_back("C:\\gone.stp");
  EXPECT_EQ(ProjectOpenDialog(t.program), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(readError("C:\\gone.stp"), kOpenError));
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(TreeText(project), "Home");
}

class SavingTest : public ProjectLifeTest {
 protected:
  void SetUp() override {
    ProjectLifeTest::SetUp();
    openShop();
    before = content(kProjectPath);
    project.storeTitle.assign("Changed");
    project.dirty = 1;
  }
  void expectUnsaved() {
    EXPECT_EQ(content(kProjectPath), before);
    EXPECT_EQ(project.dirty, 1);
    EXPECT_THAT(t.files.log, IsEmpty());
    EXPECT_THAT(t.screen.tasks, IsEmpty());
  }
  void expectSavedWithBackup() {
    EXPECT_THAT(content(kProjectPath), testing::HasSubstr("\nSTITLE=Changed\n"));
    EXPECT_EQ(content(kShop + "\\Backup\\Shop.stp.1"), before);
    EXPECT_EQ(project.dirty, 0);
    EXPECT_THAT(t.screen.tasks, ElementsAre(kSaving));
  }
  std::string before;
};

using SavePromptTest = SavingTest;

TEST_F(SavePromptTest, AnUnchangedProjectIsNotAskedAbout) {
  project.dirty = 0;
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Unasked);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_EQ(content(kProjectPath), before);
}

TEST_F(SavePromptTest, NoLeavesEverythingAsItIs) {
  t.screen.answers = {Answer::No};
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Unasked);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveQuestion));
  expectUnsaved();
}

TEST_F(SavePromptTest, AnythingButYesIsNo) {
  t.screen.answers = {Answer::Cancel, Answer::Ok};
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Unasked);
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Unasked);
  expectUnsaved();
}

TEST_F(SavePromptTest, YesMakesTheBackupAndSaves) {
  t.screen.answers = {Answer::Yes};
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Saved);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveQuestion));
  expectSavedWithBackup();
  EXPECT_EQ(content("config.ini"), "(none)") << "only the Save command writes the configuration";
}

TEST_F(SavePromptTest, GivesTheResultOfASaveThatFails) {
  failAt("create");
  t.screen.answers = {Answer::Yes};
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Failed);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveQuestion, kWriteError));
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(SavePromptTest, WithoutAFileYesSavesNothing) {
  project.projectFile.release();
  t.screen.answers = {Answer::Yes};
  EXPECT_EQ(SavePrompt(t.program), PromptResult::Failed);
  expectUnsaved();
}

using ProjectSaveNowTest = SavingTest;

TEST_F(ProjectSaveNowTest, MakesTheBackupSavesAndWritesTheConfiguration) {
  EXPECT_TRUE(ProjectSaveNow(t.program));
  expectSavedWithBackup();
  EXPECT_THAT(content("config.ini"), testing::HasSubstr(std::string("\nfile=") + kProjectPath + "\n"));
  EXPECT_NE(content("scheme.ini"), "(none)");
  EXPECT_THAT(t.screen.boxes, IsEmpty()) << "it asks nothing";
}

TEST_F(ProjectSaveNowTest, TheBackupComesFirstTheConfigurationLast) {
  ProjectSaveNow(t.program);
  std::erase_if(t.files.log, [](const std::string& line) {
    return line.starts_with("write") || line.starts_with("move") || line.starts_with("remove") ||
           line.find("emplate\\") != std::string::npos;  // the path has both spellings
  });
  EXPECT_THAT(t.files.log, ElementsAre("makeFolder " + kShop + "\\Backup",
                                       std::string("copy ") + kProjectPath + " to " + kShop + "\\Backup\\Shop.stp.1",
                                       std::string("create ") + kProjectPath, "create C:\\Varlo\\config.ini",
                                       "create C:\\Varlo\\scheme.ini"));
}

TEST_F(ProjectSaveNowTest, AnUnchangedProjectIsSavedToo) {
  project.dirty = 0;
  EXPECT_TRUE(ProjectSaveNow(t.program));
  expectSavedWithBackup();
}

TEST_F(ProjectSaveNowTest, RefreshesTheCommands) {
  ProjectSaveNow(t.program);
  EXPECT_THAT(t.view.calls, ElementsAre("refreshCommandStates"));
}

TEST_F(ProjectSaveNowTest, WithoutAProjectOnlyTheConfigurationIsWritten) {
  TestProgram empty;
  EXPECT_FALSE(ProjectSaveNow(empty.program));
  EXPECT_THAT(empty.files.names(), ElementsAre("C:\\Varlo\\config.ini", "C:\\Varlo\\scheme.ini"));
  EXPECT_THAT(empty.screen.boxes, IsEmpty());
  EXPECT_THAT(empty.screen.tasks, IsEmpty());
  EXPECT_THAT(empty.view.calls, IsEmpty());
}

TEST_F(ProjectSaveNowTest, ASaveThatFailsIsToldAndTheConfigurationIsWrittenAllTheSame) {
  failAt(std::string("create ") + kProjectPath);
  EXPECT_FALSE(ProjectSaveNow(t.program));
  EXPECT_THAT(t.screen.boxes, ElementsAre(kWriteError));
  EXPECT_EQ(project.dirty, 1);
  EXPECT_NE(content("config.ini"), "(none)");
}

class ProjectRestoreTest : public ProjectLifeTest {
 protected:
  const std::string kBackup = kShop + "\\Backup\\Shop.stp.";

  static std::string backupText(int number) {
    return "VERSION=107001\nNODE0=Home\nSTITLE=Backup " + std::to_string(number) + "\n";
  }
  void openWithBackups(std::initializer_list<int> numbers) {
    LoadCurrent(t, "NODE0=Home\nSTITLE=On disk\n");
    for (const int n : numbers) t.files.put(kBackup + std::to_string(n), backupText(n));
    forgetRecords();
  }
};

TEST_F(ProjectRestoreTest, OpensTheBackupUnderTheNameOfTheProject) {
  openWithBackups({1, 2});
  t.files.put(kBackup + "2", "TIME=5\nVERSION=107001\nNODE0=Old\nSTITLE=Old days\n");
  EXPECT_TRUE(ProjectRestore(t.program, kBackup + "2"));
  EXPECT_EQ(TreeText(project), "Old");
  EXPECT_STREQ(project.storeTitle.get(), "Old days");
  EXPECT_STREQ(project.projectFile.get(), kProjectPath);
  EXPECT_EQ(t.files.content(kProjectPath), t.files.content(kBackup + "2"));
  EXPECT_EQ(t.screen.tasks, std::vector<std::string>{"Varlo PRO: Loading store project. Please wait........"});
  ExpectPlainTree(project);
}

TEST_F(ProjectRestoreTest, DoesNotRollAndLeavesTheSeries) {
  openWithBackups({1, 2, 3});
  ProjectRestore(t.program, kBackup + "2");
  EXPECT_EQ(t.files.log, (std::vector<std::string>{"copy " + kBackup + "2 to " + kProjectPath}));
  for (int n = 1; n <= 3; ++n) EXPECT_EQ(content(kBackup + std::to_string(n)), backupText(n));
  EXPECT_EQ(t.files.search(kShop + "\\Backup\\*.*").size(), 3U) << "what was on disk is kept nowhere";
}

TEST_F(ProjectRestoreTest, LosesUnsavedChangesWithoutAQuestionOfItsOwn) {
  openWithBackups({1});
  AddCategory(project, "Unsaved");
  project.storeTitle.assign("Unsaved");
  project.dirty = 1;
  EXPECT_TRUE(ProjectRestore(t.program, kBackup + "1"));
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_STREQ(project.storeTitle.get(), "Backup 1");
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(ProjectRestoreTest, ABackupWithoutATimeIsRestoredLikeAnyOther) {
  openWithBackups({});
  t.files.put(kShop + "\\Backup\\by hand", "VERSION=107001\nNODE0=By hand\n");
  EXPECT_TRUE(ProjectRestore(t.program, kShop + "\\Backup\\by hand"));
  EXPECT_EQ(TreeText(project), "By hand");
}

TEST_F(ProjectRestoreTest, ACopyThatFailsGoesUnnoticedAndTheOldFileIsShown) {
  openWithBackups({});
  AddCategory(project, "Unsaved");
  EXPECT_FALSE(ProjectRestore(t.program, kBackup + "1"));
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_STREQ(project.storeTitle.get(), "On disk");
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(ProjectRestoreTest, WithNeitherBackupNorFileTheTreeIsMadeNew) {
  openWithBackups({});
  t.files.remove(kProjectPath);
  EXPECT_FALSE(ProjectRestore(t.program, kBackup + "1"));
  EXPECT_EQ(
      t.screen.boxes,
      (std::vector<ShownBox>{{std::string("S103: Unable to read project file '") + kProjectPath + "'", "Error"}}));
  EXPECT_EQ(TreeText(project), "On disk");
  ExpectPlainTree(project);
}

using DirectoryCreatePathTest = ProjectLifeTest;

TEST_F(DirectoryCreatePathTest, MakesEveryLevel) {
  EXPECT_EQ(DirectoryCreatePath(t.program, "C:\\a\\b c\\d.e"), 1);
  EXPECT_THAT(t.files.log, ElementsAre("makeFolder C:", "makeFolder C:\\a", "makeFolder C:\\a\\b c",
                                       "makeFolder C:\\a\\b c\\d.e"));
  EXPECT_EQ(t.files.makeFolder("C:\\a\\b c\\d.e"), MakeFolderResult::Exists);
}

TEST_F(DirectoryCreatePathTest, LevelsThatAreThereAreNoFailure) {
  t.files.putFolder("C:\\a\\b");
  EXPECT_EQ(DirectoryCreatePath(t.program, "C:\\a\\b"), 1);
  EXPECT_EQ(DirectoryCreatePath(t.program, "C:\\a\\b\\c"), 1);
  EXPECT_EQ(t.files.makeFolder("C:\\a\\b\\c"), MakeFolderResult::Exists);
}

TEST_F(DirectoryCreatePathTest, ARelativePathIsBelowTheWorkingFolder) {
  EXPECT_EQ(DirectoryCreatePath(t.program, "x\\y"), 1);
  EXPECT_EQ(t.files.makeFolder("C:\\Varlo\\x\\y"), MakeFolderResult::Exists);
}

TEST_F(DirectoryCreatePathTest, ALevelThatFailsGivesZeroAndTheWalkGoesOn) {
  t.files.putFolder("C:\\a\\b");
  failAt("makeFolder C:\\a");
  EXPECT_EQ(DirectoryCreatePath(t.program, "C:\\a\\b"), 0);
  EXPECT_THAT(t.files.log, ElementsAre("makeFolder C:", "makeFolder C:\\a", "makeFolder C:\\a\\b"));
}

TEST_F(DirectoryCreatePathTest, ALevelThatFailedOnceDoesNotKeepTheLowerOnesFromBeingMade) {
  t.files.putFolder("C:\\a");
  t.files.shallFail = [](const std::string& line) { return line == "makeFolder C:\\a"; };
  EXPECT_EQ(DirectoryCreatePath(t.program, "C:\\a\\b"), 0);
  EXPECT_EQ(t.files.makeFolder("C:\\a\\b"), MakeFolderResult::Exists);
}

TEST_F(DirectoryCreatePathTest, EmptyLevelsAreSkipped) {
  EXPECT_EQ(DirectoryCreatePath(t.program, "\\x\\\\y\\"), 1);
  EXPECT_THAT(t.files.log, ElementsAre("makeFolder C:\\Varlo\\x", "makeFolder C:\\Varlo\\x\\y"));
}

TEST_F(DirectoryCreatePathTest, AnEmptyPathHasNothingToMake) {
  EXPECT_EQ(DirectoryCreatePath(t.program, ""), 1);
  EXPECT_EQ(DirectoryCreatePath(t.program, "\\\\"), 1);
  EXPECT_THAT(t.files.log, IsEmpty());
}

}  // namespace
}  // namespace varlo
