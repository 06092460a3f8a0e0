#include "core/program/start_up.h"

#include <gtest/gtest.h>

#include "core/program/messages.h"
#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

class StartUpTest : public testing::Test {
 protected:
  TestProgram t;
  std::vector<std::string> order;
  ShutDownSteps shutDown{
      .saveWithBackup =
          [this](Program&) {
            order.emplace_back("save");
            return true;
          },
      .stopBuild = [this](Program&) { order.emplace_back("stop"); },
      .saveConfig = [this](Program&) { order.emplace_back("config"); },
  };

  std::function<void(Program&)> note(const char* name) {
    return [this, name](Program&) { order.emplace_back(name); };
  }
};

TEST_F(StartUpTest, ReadsTheFilesInOrder) {
  StartUp(t.program, {.readRegionCatalogue = note("regions"),
                      .readSchemeCatalogue = note("schemes"),
                      .readConfig = note("config"),
                      .readCardCatalogue = note("cards"),
                      .readTemplateVersions = note("versions"),
                      .setSchemeDefaults = [this](SchemeRecord&) { order.emplace_back("defaults"); },
                      .detectBrowsers = note("browsers")});
  EXPECT_EQ(order, (std::vector<std::string>{"regions", "schemes", "config", "cards", "versions", "defaults",
                                             "defaults", "browsers"}));
}

TEST_F(StartUpTest, WithoutFilesMakesTheDefaults) {
  StartUp(t.program, {});
  const AppConfig& config = t.config();
  ASSERT_NE(config.schemeStyles, nullptr);
  EXPECT_STREQ(config.schemeStyles->name.get(), "Varlo Default");
  EXPECT_EQ(config.currentStyle, config.schemeStyles);
  ASSERT_NE(config.currentScheme, nullptr);
  EXPECT_STREQ(config.currentScheme->name.get(), "Default");
  EXPECT_EQ(config.currentScheme->prev, config.schemeStyles);
  EXPECT_EQ(SchemePath(config.currentScheme), "Varlo Default/Default");

  const StoreProject& project = t.project();
  ASSERT_NE(project.variables, nullptr);
  EXPECT_STREQ(project.variables->name.get(), "$COPYRIGHT");
  EXPECT_STREQ(project.variables->value.get(),
               "Copyright \xA9"
               "2000");
  EXPECT_EQ(project.variables, project.variablesTail);
  EXPECT_EQ(project.variables, project.currentVariable);
  EXPECT_STREQ(project.methodName[0].get(), "Economy Air (2-3 Weeks)");
  EXPECT_STREQ(project.methodName[1].get(), "Express Courier (1-3 Days)");
  EXPECT_STREQ(project.methodName[2].get(), "Surface Mail (3-6 Weeks)");
}

TEST_F(StartUpTest, ConfigDefaultsStand) {
  const AppConfig& config = t.config();
  EXPECT_EQ(config.lowerCaseLinks, 1);
  EXPECT_EQ(config.viewFlags, 3);
  EXPECT_EQ(config.directoryLink, 1);
  EXPECT_EQ(config.display, 31);
  EXPECT_EQ(config.control, 0);
  EXPECT_EQ(config.helpAtStart, 1);
  EXPECT_EQ(config.uid, 0);
  EXPECT_EQ(config.newWindow, 0);
  EXPECT_TRUE(config.orderServer.isNull());
}

TEST_F(StartUpTest, ACatalogueWithoutACurrentStyleGetsOneAndNoScheme) {
  StartUp(t.program,
          {.readSchemeCatalogue = [](Program& program) { program.config.schemeStyles = SchemeInit(nullptr); }});
  EXPECT_EQ(t.config().currentStyle, t.config().schemeStyles);
  EXPECT_EQ(t.config().schemeStyles->schemes, nullptr);
  EXPECT_EQ(t.config().currentScheme, nullptr);
}

TEST_F(StartUpTest, AVariableThatIsThereStays) {
  UserVariable* own = UserVariableInit(nullptr);
  own->name.assign("$OWN");
  UserVariableAppend(t.project(), own);
  StartUp(t.program, {});
  EXPECT_EQ(t.project().variables, own);
  EXPECT_EQ(own->next, nullptr);
}

TEST_F(StartUpTest, EmptiesSlotsAndTemplateNames) {
  t.files.put("a.htm", "x");
  FileReadToSlot(t.program, 3, "a.htm", false);
  t.project().templateNames[0].assign("a.htm");
  StartUp(t.program, {});
  EXPECT_FALSE(t.program.slots[3].hasMemory());
  EXPECT_TRUE(t.project().templateNames[0].isNull());
}

TEST_F(StartUpTest, WithoutAServerPostsUpgrade) {
  StartUpInWindow(t.program, {});
  EXPECT_EQ(t.screen.posted, std::vector{Command::Upgrade});
}

TEST_F(StartUpTest, AnEmptyServerCountsAsNone) {
  t.config().orderServer.assign("");
  StartUpInWindow(t.program, {});
  EXPECT_EQ(t.screen.posted, std::vector{Command::Upgrade});
}

TEST_F(StartUpTest, WithAServerAndNoProjectPostsNewStore) {
  t.config().orderServer.assign("orders.example");
  StartUpInWindow(t.program, {});
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
}

TEST_F(StartUpTest, WithAServerAndAProjectPostsNothing) {
  t.config().orderServer.assign("orders.example");
  t.project().projectFile.assign("C:\\a.stp");
  int loads = 0;
  StartUpInWindow(t.program, {.loadProject = [&](Program&) { return ++loads; }});
  EXPECT_EQ(loads, 1);
  EXPECT_TRUE(t.screen.posted.empty());
  EXPECT_EQ(t.screen.waitCursor, (std::vector<bool>{true, false}));
}

TEST_F(StartUpTest, AFailedOpenGoesOnAsIfThereHadBeenNoFile) {
  t.config().orderServer.assign("orders.example");
  t.project().projectFile.assign("C:\\a.stp");
  StartUpInWindow(t.program, {.loadProject = [](Program& program) {
                    program.project.projectFile.release();
                    return 0;
                  }});
  EXPECT_EQ(t.screen.posted, std::vector{Command::NewStore});
}

TEST_F(StartUpTest, TheWindowOpensItsPageUnderTheWaitCursorAndShowsTheRestBeforeTheFirstCommand) {
  t.project().projectFile.assign("C:\\a.stp");
  const auto noteWithCursor = [this](const char* name) {
    return [this, name](Program& program) {
      order.push_back(std::string(name) + (program.waitCursorShown ? ", waiting" : ""));
      program.screen.postCommand(Command::RefillTree);
    };
  };
  StartUpInWindow(t.program, {.loadProject =
                                  [this](Program&) {
                                    order.emplace_back("load");
                                    return 1;
                                  },
                              .openPage = noteWithCursor("page"),
                              .show = noteWithCursor("show")});
  EXPECT_EQ(order, (std::vector<std::string>{"load", "page, waiting", "show"}));
  EXPECT_EQ(t.screen.posted, (std::vector{Command::RefillTree, Command::RefillTree, Command::Upgrade}));
}

TEST_F(StartUpTest, FirstRunCountsOnlyWithoutConfigOnDisk) {
  StartUpInWindow(t.program, {});
  EXPECT_EQ(t.config().firstRun, 1);
  t.files.put("config.ini", "");
  StartUpInWindow(t.program, {});
  EXPECT_EQ(t.config().firstRun, 1);
}

TEST_F(StartUpTest, AfterUpgradeAFirstRunShowsTheDemoOnceThenTheWizard) {
  std::vector<std::string> shown;
  const auto open = [&](Program&, const char* page) { shown.emplace_back(page); };
  t.config().firstRun = 1;
  ContinueAfterUpgrade(t.program, open);
  ContinueAfterUpgrade(t.program, open);
  EXPECT_EQ(shown, std::vector<std::string>{"Projects\\Demo\\Web\\index.html"});
  EXPECT_EQ(t.screen.posted, (std::vector{Command::NewStore, Command::NewStore}));
}

TEST_F(StartUpTest, AfterUpgradeWithAProjectNoWizardStarts) {
  t.project().projectFile.assign("C:\\a.stp");
  ContinueAfterUpgrade(t.program, [](Program&, const char*) { FAIL() << "no first run"; });
  EXPECT_TRUE(t.screen.posted.empty());
}

TEST_F(StartUpTest, QuitOfAChangedProjectAsksAndSaves) {
  t.project().dirty = 1;
  t.screen.answers = {Answer::Yes};
  ShutDown(t.program, shutDown);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0], (ShownBox{"The current project has changed.  Do you wish to save your changes?",
                                         "Varlo PRO - Save Store Confirmation", Buttons::YesNo, Icon::Question}));
  EXPECT_EQ(order, std::vector<std::string>{"save"});
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(StartUpTest, ExitWithDirtySetAndNoWritesOnlyTheConfiguration) {
  t.project().dirty = 1;
  t.project().projectFile.assign("C:\\a.stp");
  t.config().browser.assign("b");
  t.config().proxy.assign("p");
  t.config().orderServer.assign("s");
  t.screen.answers = {Answer::No};
  ShutDown(t.program, shutDown);
  ShutDownWindow(t.program, shutDown);
  EXPECT_EQ(order, (std::vector<std::string>{"stop", "config"}));
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_STREQ(t.project().projectFile.get(), "C:\\a.stp");
  EXPECT_TRUE(t.config().browser.isNull());
  EXPECT_TRUE(t.config().proxy.isNull());
  EXPECT_TRUE(t.config().orderServer.isNull());
}

TEST_F(StartUpTest, AnUnchangedProjectIsNotAskedAbout) {
  EXPECT_EQ(AskToSave(t.program, shutDown.saveWithBackup), PromptResult::Unasked);
  EXPECT_TRUE(t.screen.boxes.empty());
}

}  // namespace
}  // namespace varlo
