#include "persist/life/start_up.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "core/store/user_variable.h"
#include "persist/project/project_load.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const ShownBox kRegionsBox{"ERROR W106: Unable to Load Domains List 'domain.dat'", "Error"};
const ShownBox kCardsBox{"ERROR W107: Unable to open credit card list file 'cc.dat'", "Error"};
const ShownBox kSaveBox{"The current project has changed.  Do you wish to save your changes?",
                        "Varlo PRO - Save Store Confirmation", Buttons::YesNo, Icon::Question};
constexpr const char* kShop = "C:\\Varlo\\Projects\\Shop\\Shop.stp";

// A disk that notes which files are asked for.
class AskedFiles : public FakeFiles {
 public:
  std::vector<std::string> asked;
  FileHandle openRead(std::string_view path) override {
    asked.emplace_back(path);
    return FakeFiles::openRead(path);
  }
};

class StartUpTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();
  StoreProject& project = t.project();

  // The two lists that an installation has, so that a start is silent.
  void putLists() {
    t.files.put("domain.dat", "AU Australia\n");
    t.files.put("cc.dat", "Visa\n");
  }
  void putShop() {
    t.files.put(kShop, "VERSION=107001\nNODE0=Home\nVAR=$OWN|1\nCURR=$\n");
    t.files.put("Projects\\Shop\\Template\\order.htm", "order");
    t.files.put("Projects\\Shop\\Template\\confirm.htm", "confirm");
  }
  static void start(TestProgram& program) {
    StartUp(program.program);
    ProjectLoad(program.program);
    PostFirstCommand(program.program);
  }
  void start() { start(t); }
  // The pages that the browser was asked to show.
  std::vector<std::string> pagesShown() {
    std::vector<std::string> shown;
    std::ranges::copy_if(t.view.calls, std::back_inserter(shown),
                         [](const std::string& call) { return call.starts_with("openInBrowser"); });
    return shown;
  }
  // Quit, and the end of the main window.
  static void quit(TestProgram& program) {
    ShutDown(program.program);
    ShutDownWindow(program.program);
  }
  void quit() { quit(t); }
  // Another run on what the last one left on the disk.
  void startAgain(TestProgram& next) {
    next.files = t.files;
    next.files.log.clear();
    start(next);
  }
};

// Nothing on the disk.

TEST_F(StartUpTest, AStartWithoutFilesShowsTwoMessagesInOrder) {
  start();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kRegionsBox, kCardsBox));
}

TEST_F(StartUpTest, AStartWithoutFilesMakesTheDefaultStyleAndScheme) {
  start();
  const SchemeStyle* style = config.schemeStyles;
  ASSERT_NE(style, nullptr);
  EXPECT_STREQ(style->name.get(), "Varlo Default");
  EXPECT_STREQ(style->slot[0].get(), "WHITE");
  EXPECT_STREQ(style->slot[30].get(), "img\\remove.gif");
  EXPECT_NE(style->files, nullptr);
  EXPECT_EQ(style->type, 0);
  EXPECT_EQ(style->next, nullptr);
  EXPECT_EQ(config.currentStyle, style);
  const Scheme* scheme = style->schemes;
  ASSERT_NE(scheme, nullptr);
  EXPECT_STREQ(scheme->name.get(), "Default");
  EXPECT_STREQ(scheme->slot[7].get(), "#800080");
  EXPECT_TRUE(scheme->slot[23].isNull());
  EXPECT_NE(scheme->files, nullptr);
  EXPECT_EQ(scheme->next, nullptr);
  EXPECT_EQ(config.currentScheme, scheme);
  EXPECT_EQ(SchemePath(scheme), "Varlo Default/Default");
}

TEST_F(StartUpTest, AStartWithoutFilesMakesTheCopyrightVariable) {
  start();
  const UserVariable* variable = project.variables;
  ASSERT_NE(variable, nullptr);
  EXPECT_STREQ(variable->name.get(), "$COPYRIGHT");
  EXPECT_EQ(variable->value.view(), std::string("Copyright \xA9") + "2000");
  EXPECT_EQ(variable->next, nullptr);
  EXPECT_EQ(project.variablesTail, variable);
  EXPECT_EQ(project.currentVariable, variable);
}

TEST_F(StartUpTest, AStartWithoutFilesLeavesTheDefaultsOfTheConfiguration) {
  start();
  EXPECT_TRUE(config.browser.isNull());
  EXPECT_TRUE(config.proxy.isNull());
  EXPECT_EQ(config.proxyPort, 0);
  EXPECT_TRUE(config.orderServer.isNull());
  EXPECT_TRUE(config.accountId.isNull());
  for (const Text& folder : config.lastDir) EXPECT_TRUE(folder.isNull());
  EXPECT_EQ(config.newWindow, 0);
  EXPECT_EQ(config.lowerCaseLinks, 1);
  EXPECT_EQ(config.viewFlags, 3);
  EXPECT_EQ(config.directoryLink, 1);
  EXPECT_EQ(config.display, 31);
  EXPECT_EQ(config.control, 0);
  EXPECT_EQ(config.helpAtStart, 1);
  EXPECT_EQ(config.uid, 0);
  EXPECT_EQ(config.cardCatalogue, nullptr);
  EXPECT_EQ(config.regionCatalogue, nullptr);
  EXPECT_EQ(config.templateVersionOrder, 0);
  EXPECT_EQ(config.templateVersionConfirm, 0);
  EXPECT_TRUE(config.schemeTemplateSet.isNull());
}

TEST_F(StartUpTest, AStartWithoutFilesNamesTheThreeMethods) {
  start();
  EXPECT_STREQ(project.methodName[0].get(), "Economy Air (2-3 Weeks)");
  EXPECT_STREQ(project.methodName[1].get(), "Express Courier (1-3 Days)");
  EXPECT_STREQ(project.methodName[2].get(), "Surface Mail (3-6 Weeks)");
}

TEST_F(StartUpTest, AStartWithoutFilesPostsUpgradeAndOpensNoProject) {
  start();
  EXPECT_EQ(t.screen.posted, std::vector{Command::Upgrade});
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(project.root, nullptr);
  EXPECT_THAT(t.screen.tasks, IsEmpty());
  EXPECT_EQ(config.firstRun, 1);
}

TEST_F(StartUpTest, AStartWritesNothing) {
  start();
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_EQ(t.files.openHandles(), 0U);
}

// What is read, and in which order.

TEST_F(StartUpTest, ReadsTheFilesOfTheInstallationInOrder) {
  AskedFiles files;
  FixedClock clock{kTestTime};
  FakeScreen screen;
  ProcessClipboard clipboard;
  RecordingView view;
  Program program{files, clock, screen, clipboard, view};
  StartUp(program);
  EXPECT_THAT(files.asked, ElementsAre("domain.dat", "scheme.dat", "scheme.ini", "config.ini", "server.ini", "cc.dat",
                                       "version.ini"));
}

TEST_F(StartUpTest, TakesWhatTheFilesHold) {
  putLists();
  t.files.put("scheme.dat", "template=set\nSCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n");
  t.files.put("scheme.ini", "SCHEMA=C\nTYP=1\n#CAT\nSCHEMA=D\nTYP=1\n#BREAK\n");
  t.files.put("config.ini", "proxy=p\n");
  t.files.put("server.ini", "id=shop7\n");
  t.files.put("version.ini", "ORDER=3\nCONFIRM=4\n");
  start();
  EXPECT_STREQ(config.regionCatalogue->name.get(), "Australia");
  EXPECT_STREQ(config.cardCatalogue->name.get(), "Visa");
  EXPECT_STREQ(config.schemeTemplateSet.get(), "set");
  EXPECT_STREQ(config.schemeStyles->name.get(), "A");
  EXPECT_STREQ(config.schemeStyles->next->name.get(), "C");
  EXPECT_STREQ(config.schemeStyles->next->schemes->name.get(), "D");
  EXPECT_STREQ(config.proxy.get(), "p");
  EXPECT_STREQ(config.accountId.get(), "shop7");
  EXPECT_EQ(config.templateVersionOrder, 3);
  EXPECT_EQ(config.templateVersionConfirm, 4);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(StartUpTest, MissingCatalogueAndSettingsFilesGiveNoMessage) {
  putLists();
  start();
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(StartUpTest, AMissingListOfRegionsIsToldAndTheOthersAreRead) {
  t.files.put("cc.dat", "Visa\n");
  t.files.put("version.ini", "ORDER=3\n");
  start();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kRegionsBox));
  EXPECT_NE(config.cardCatalogue, nullptr);
  EXPECT_EQ(config.templateVersionOrder, 3);
}

TEST_F(StartUpTest, AMissingListOfCardsIsToldAndTheOthersAreRead) {
  t.files.put("domain.dat", "AU Australia\n");
  t.files.put("version.ini", "ORDER=3\n");
  start();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kCardsBox));
  EXPECT_NE(config.regionCatalogue, nullptr);
  EXPECT_EQ(config.templateVersionOrder, 3);
}

// The catalogue of layouts.

TEST_F(StartUpTest, AStyleWithoutSchemesThatIsCurrentGetsADefaultScheme) {
  putLists();
  t.files.put("scheme.dat", "SCHEMA=A\nSCHEMA=B\n");
  t.files.put("config.ini", "");
  start();
  SchemeStyle* style = config.schemeStyles;
  EXPECT_EQ(config.currentStyle, style);
  ASSERT_NE(style->schemes, nullptr);
  EXPECT_STREQ(style->schemes->name.get(), "Default");
  EXPECT_STREQ(style->schemes->slot[0].get(), "WHITE");
  EXPECT_NE(style->schemes->files, nullptr);
  EXPECT_EQ(style->schemes->prev, style);
  EXPECT_EQ(config.currentScheme, style->schemes);
  EXPECT_EQ(style->next->schemes, nullptr);
}

TEST_F(StartUpTest, AServerFileAloneMakesTheFirstStyleCurrentToo) {
  putLists();
  t.files.put("scheme.dat", "SCHEMA=A\n");
  t.files.put("server.ini", "");
  start();
  EXPECT_STREQ(SchemePath(config.currentScheme).c_str(), "A/Default");
}

TEST_F(StartUpTest, ACatalogueWithoutSettingsFilesGetsACurrentStyleButNoScheme) {
  putLists();
  t.files.put("scheme.dat", "SCHEMA=A\nSCHEMA=B\n");
  start();
  EXPECT_EQ(config.currentStyle, config.schemeStyles);
  EXPECT_STREQ(config.currentStyle->name.get(), "A");
  EXPECT_EQ(config.schemeStyles->schemes, nullptr);
  EXPECT_EQ(config.currentScheme, nullptr);
}

TEST_F(StartUpTest, AStyleWithSchemesIsLeftAsItIs) {
  putLists();
  t.files.put("scheme.dat", "SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n");
  t.files.put("config.ini", "");
  start();
  EXPECT_STREQ(config.currentStyle->name.get(), "A");
  EXPECT_STREQ(config.schemeStyles->schemes->name.get(), "B");
  EXPECT_EQ(config.schemeStyles->schemes->next, nullptr);
  EXPECT_EQ(config.currentScheme, nullptr);
  EXPECT_EQ(config.schemeStyles->next, nullptr);
}

TEST_F(StartUpTest, ASecondStartOfTheSameProgramReadsTheCatalogueAnew) {
  putLists();
  t.files.put("scheme.dat", "SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n");
  StartUp(t.program);
  StartUp(t.program);
  EXPECT_STREQ(config.schemeStyles->name.get(), "A");
  EXPECT_EQ(config.schemeStyles->next, nullptr);
  EXPECT_EQ(config.schemeStyles->schemes->next, nullptr);
}

TEST_F(StartUpTest, AnOldLayoutSectionMovesToTheCatalogueAtTheFirstExit) {
  putLists();
  t.files.put("scheme.dat", "SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n");
  t.files.put("scheme.ini", "SCHEMA=C\nTYP=1\n#CAT\nSCHEMA=D\nTYP=1\n#BREAK\n");
  t.files.put("config.ini", "SCHEMA=Old\n3=red\nport=7\n");
  start();
  ASSERT_NE(config.schemeStyles->next->next, nullptr);
  EXPECT_STREQ(config.schemeStyles->next->next->name.get(), "v1.02 Schema");
  quit();
  EXPECT_THAT(*t.files.content("config.ini"), Not(HasSubstr("SCHEMA=")));
  EXPECT_THAT(*t.files.content("scheme.ini"), HasSubstr("\nSCHEMA=v1.02 Schema\n"));

  TestProgram next;
  startAgain(next);
  const SchemeStyle* style = next.config().schemeStyles->next->next;
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(style->next, nullptr);
  EXPECT_STREQ(style->name.get(), "v1.02 Schema");
  EXPECT_STREQ(style->schemes->name.get(), "Old");
  EXPECT_STREQ(style->schemes->slot[3].get(), "red");
  EXPECT_EQ(next.config().proxyPort, 7);
}

// The order server, and what comes next.

TEST_F(StartUpTest, AServerFileAloneStartsTheWizardAndShowsNoDemo) {
  putLists();
  t.files.put("server.ini", "server=s.example\n");
  start();
  EXPECT_STREQ(config.orderServer.get(), "s.example");
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
  EXPECT_THAT(pagesShown(), IsEmpty()) << "the demo waits for the next Upgrade";
  EXPECT_EQ(config.firstRun, 1);
}

TEST_F(StartUpTest, AnEmptyServerCountsAsNone) {
  config.orderServer.assign("");
  PostFirstCommand(t.program);
  EXPECT_EQ(t.screen.posted, std::vector{Command::Upgrade});
}

TEST_F(StartUpTest, VarloInTheConfigurationWinsOverTheServerFile) {
  t.files.put("config.ini", "varlo=v\n");
  t.files.put("server.ini", "server=s\n");
  start();
  EXPECT_STREQ(config.orderServer.get(), "v");
}

TEST_F(StartUpTest, VarloWinsOverServerWhateverTheOrderOfTheLines) {
  for (const char* text : {"varlo=v\nserver=c\n", "server=c\nvarlo=v\n"}) {
    SCOPED_TRACE(text);
    TestProgram fresh;
    fresh.files.put("config.ini", text);
    fresh.files.put("server.ini", "server=s\n");
    start(fresh);
    EXPECT_STREQ(fresh.config().orderServer.get(), "v");
  }
}

TEST_F(StartUpTest, AnEmptyVarloKeepsTheServerOutAndPostsUpgrade) {
  t.files.put("config.ini", "varlo=\n");
  t.files.put("server.ini", "server=s\n");
  start();
  EXPECT_STREQ(config.orderServer.get(), "");
  EXPECT_EQ(t.screen.posted, std::vector{Command::Upgrade});
}

TEST_F(StartUpTest, AServerThatWasTakenIsInTheConfigurationAfterTheExit) {
  t.files.put("server.ini", "server=s\n");
  start();
  quit();
  EXPECT_THAT(*t.files.content("config.ini"), HasSubstr("\nvarlo=s\n"));
  t.files.put("server.ini", "server=other\n");
  TestProgram next;
  startAgain(next);
  EXPECT_STREQ(next.config().orderServer.get(), "s");
}

TEST_F(StartUpTest, ADeleteOrderIsCarriedOutAtEveryStart) {
  t.files.put("server.ini", "delete=old.exe\n");
  t.files.put("old.exe", "x");
  start();
  EXPECT_FALSE(t.files.content("old.exe").has_value());
  t.files.put("old.exe", "x");
  TestProgram next;
  startAgain(next);
  EXPECT_FALSE(next.files.content("old.exe").has_value());
}

// The project of the last run.

TEST_F(StartUpTest, AStartOpensTheProjectOfTheConfiguration) {
  putLists();
  putShop();
  t.files.put("config.ini", std::string("varlo=s\nfile=") + kShop + "\n");
  start();
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_STREQ(project.projectFile.get(), kShop);
  ASSERT_NE(project.root, nullptr);
  EXPECT_STREQ(project.root->title.get(), "Home");
  EXPECT_STREQ(project.variables->name.get(), "$OWN");
  EXPECT_EQ(project.variables->next, nullptr);
  EXPECT_THAT(t.screen.tasks, ElementsAre("Varlo PRO: Loading store project. Please wait........"));
  EXPECT_THAT(t.screen.posted, Not(Contains(Command::NewStore)));
  EXPECT_THAT(t.screen.posted, Not(Contains(Command::Upgrade)));
  EXPECT_EQ(config.firstRun, 0);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(StartUpTest, AnOpenProjectWithoutAServerPostsUpgrade) {
  putLists();
  putShop();
  t.files.put("config.ini", std::string("file=") + kShop + "\n");
  start();
  EXPECT_THAT(t.screen.posted, Contains(Command::Upgrade));
  EXPECT_THAT(t.screen.posted, Not(Contains(Command::NewStore)));
}

TEST_F(StartUpTest, AnEmptyFileKeyOpensNothing) {
  putLists();
  t.files.put("config.ini", "varlo=s\nfile=\n");
  start();
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.screen.tasks, IsEmpty());
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
}

TEST_F(StartUpTest, AProjectThatIsGoneIsToldOnceAndTheWizardStarts) {
  putLists();
  t.files.put("config.ini", "varlo=s\nfile=C:\\gone\\gone.stp\n");
  start();
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{"S103: Unable to read project file 'C:\\gone\\gone.stp'", "Error"}));
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
  EXPECT_FALSE(t.program.waitCursorShown);
}

TEST_F(StartUpTest, AProjectThatIsGoneLeavesTheDefaultsOfAStartWithoutOne) {
  putLists();
  t.files.put("config.ini", "varlo=s\nfile=C:\\gone\\gone.stp\n");
  start();
  EXPECT_STREQ(project.variables->name.get(), "$COPYRIGHT");
  EXPECT_EQ(SchemePath(config.currentScheme), "Varlo Default/Default");
}

TEST_F(StartUpTest, AProjectThatIsGoneIsForgottenAtTheExit) {
  putLists();
  t.files.put("config.ini", "varlo=s\nfile=C:\\gone\\gone.stp\n");
  start();
  quit();
  EXPECT_THAT(*t.files.content("config.ini"), Not(HasSubstr("file=")));
}

// The first run.

TEST_F(StartUpTest, ARunWithAConfigurationIsNotTheFirst) {
  putLists();
  t.files.put("config.ini", "");
  t.files.put("server.ini", "server=s\n");
  start();
  EXPECT_EQ(config.firstRun, 0);
}

TEST_F(StartUpTest, OnlyTheConfigurationCountsForTheFirstRun) {
  putLists();
  t.files.put("server.ini", "server=s\n");
  t.files.put("scheme.ini", "SCHEMA=A\n");
  t.files.put("version.ini", "ORDER=1\n");
  start();
  EXPECT_EQ(config.firstRun, 1);
}

TEST_F(StartUpTest, TheFirstExitEndsTheFirstRun) {
  start();
  EXPECT_EQ(config.firstRun, 1);
  quit();
  TestProgram next;
  startAgain(next);
  EXPECT_EQ(next.config().firstRun, 0);
}

TEST_F(StartUpTest, AFirstRunWithoutAServerShowsTheDemoThenStartsTheWizard) {
  putLists();
  start();
  EXPECT_EQ(t.screen.posted, std::vector{Command::Upgrade});
  ContinueAfterUpgrade(t.program);
  EXPECT_THAT(pagesShown(), ElementsAre("openInBrowser Projects\\Demo\\Web\\index.html"));
  EXPECT_EQ(config.firstRun, 0);
  EXPECT_EQ(t.screen.posted, (std::vector{Command::Upgrade, Command::NewStore}));
}

TEST_F(StartUpTest, TheDemoOfAFirstRunWithAServerWaitsForTheNextUpgrade) {
  putLists();
  t.files.put("server.ini", "server=s\n");
  start();
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
  project.projectFile.assign(kShop);  // what the wizard made
  ContinueAfterUpgrade(t.program);
  EXPECT_THAT(pagesShown(), ElementsAre("openInBrowser Projects\\Demo\\Web\\index.html"));
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
}

TEST_F(StartUpTest, AfterUpgradeTheDemoIsShownOnceAndTheWizardStartsEachTime) {
  config.firstRun = 1;
  ContinueAfterUpgrade(t.program);
  ContinueAfterUpgrade(t.program);
  EXPECT_THAT(pagesShown(), ElementsAre("openInBrowser Projects\\Demo\\Web\\index.html"));
  EXPECT_EQ(t.screen.posted, (std::vector{Command::NewStore, Command::NewStore}));
}

TEST_F(StartUpTest, AfterUpgradeWithAProjectNeitherDemoNorWizardComes) {
  project.projectFile.assign(kShop);
  ContinueAfterUpgrade(t.program);
  EXPECT_THAT(pagesShown(), IsEmpty());
  EXPECT_THAT(t.screen.posted, IsEmpty());
}

// What an earlier life of the state left.

TEST_F(StartUpTest, AVariableThatIsThereStays) {
  UserVariable* own = UserVariableInit(nullptr);
  own->name.assign("$OWN");
  UserVariableAppend(project, own);
  StartUp(t.program);
  EXPECT_EQ(project.variables, own);
  EXPECT_EQ(own->next, nullptr);
}

TEST_F(StartUpTest, EmptiesSlotsAndTemplateNames) {
  t.files.put("a.htm", "x");
  FileReadToSlot(t.program, 3, "a.htm", false);
  project.templateNames[0].assign("a.htm");
  StartUp(t.program);
  EXPECT_FALSE(t.program.slots[3].hasMemory());
  EXPECT_TRUE(project.templateNames[0].isNull());
}

// The end.

class ShutDownTest : public StartUpTest {
 protected:
  // An open project that an edit has changed.
  void startAndEdit() {
    putLists();
    putShop();
    t.files.put("config.ini", std::string("varlo=s\nfile=") + kShop + "\n");
    start();
    project.root->title.assign("Changed");
    SetDirty(t.program, 1);
    t.files.log.clear();
  }
};

TEST_F(ShutDownTest, ExitWithDirtySetAndNoWritesTheConfigurationOnly) {
  startAndEdit();
  const std::string before = *t.files.content(kShop);
  t.screen.answers = {Answer::No};
  quit();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveBox));
  EXPECT_EQ(t.files.content(kShop), before);
  EXPECT_THAT(t.files.log, Not(Contains(HasSubstr("Projects"))));
  EXPECT_THAT(*t.files.content("config.ini"), HasSubstr(std::string("\nfile=") + kShop + "\n"));
  EXPECT_TRUE(t.files.content("scheme.ini").has_value());
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(ShutDownTest, AfterNoTheNextStartOpensTheProjectAsItWas) {
  startAndEdit();
  quit();
  TestProgram next;
  startAgain(next);
  EXPECT_STREQ(next.project().projectFile.get(), kShop);
  ASSERT_NE(next.project().root, nullptr);
  EXPECT_STREQ(next.project().root->title.get(), "Home");
}

TEST_F(ShutDownTest, ExitWithDirtySetAndYesBacksUpThenSaves) {
  startAndEdit();
  const std::string before = *t.files.content(kShop);
  t.screen.answers = {Answer::Yes};
  quit();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kSaveBox));
  EXPECT_EQ(t.files.content("Projects\\Shop\\Backup\\Shop.stp.1"), before);
  EXPECT_THAT(*t.files.content(kShop), HasSubstr("\nNODE0=Changed\n"));
  EXPECT_THAT(*t.files.content("config.ini"), HasSubstr(std::string("\nfile=") + kShop + "\n"));
}

TEST_F(ShutDownTest, AnUnchangedProjectIsNotAskedAboutNorWritten) {
  startAndEdit();
  SetDirty(t.program, 0);
  quit();
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.files.log, Not(Contains(HasSubstr("Projects"))));
  EXPECT_TRUE(t.files.content("scheme.ini").has_value());
}

TEST_F(ShutDownTest, TheConfigurationHoldsWhatTheExitReleases) {
  putLists();
  t.files.put("config.ini", "browser=b\nproxy=p\nvarlo=s\n");
  start();
  quit();
  EXPECT_THAT(*t.files.content("config.ini"), HasSubstr("\nbrowser=b\nproxy=p\nvarlo=s\n"));
  EXPECT_TRUE(config.browser.isNull());
  EXPECT_TRUE(config.proxy.isNull());
  EXPECT_TRUE(config.orderServer.isNull());
}

TEST_F(ShutDownTest, AConfigurationThatCanNotBeWrittenIsTold) {
  putLists();
  start();
  t.files.shallFail = [](const std::string& operation) { return operation == "create C:\\Varlo\\config.ini"; };
  quit();
  EXPECT_THAT(t.screen.boxes, ElementsAre(ShownBox{"ERROR W114: Unable to open file 'drelk.ini'", "Error"}));
  EXPECT_FALSE(t.files.content("scheme.ini").has_value());
}

}  // namespace
}  // namespace varlo
