#include "shell/browser/upgrade.h"

#include <gtest/gtest.h>

#include "shell/window/commands.h"
#include "tests/support/test_shell.h"

namespace varlo::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class UpgradeLaunch : public testing::Test {
 protected:
  TestShell t;
  const ShownBox error{"Unable to execute Upgrade Wizard 'upgrade.exe'", "Upgrade Error", Buttons::Ok,
                       Icon::Exclamation};

  void SetUp() override { t.project().projectFile.assign(kShopPath); }
  void launch() { dispatchCommand(t.shell, Command::Upgrade); }
};

TEST_F(UpgradeLaunch, GivesTheUpgradeProgramTitleVersionAndThreeAddresses) {
  launch();
  EXPECT_THAT(t.browsers.calls, ElementsAre("start upgrade.exe | TITLE=Varlo PRO Upgrade;C=Varlo PRO,1.07.001;"
                                            "CONTROL=https://www.varlo.example/cgi-bin/getfile?filename=vc;"
                                            "CONTROL=https://mirror1.varlo.example/cgi-bin/getfile?filename=vc;"
                                            "CONTROL=https://mirror2.varlo.example/cgi-bin/getfile?filename=vc;"));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(UpgradeLaunch, NamesTheTemplateSetForAnOwnerWithAnAccount) {
  t.config().schemeTemplateSet.assign("set-%s-7");
  t.config().accountId.assign("shop-1234");
  EXPECT_THAT(upgradeControlString(t.program),
              StartsWith("TITLE=Varlo PRO Upgrade;C=Varlo PRO,1.07.001;C=Templates,set-%s-7;CONTROL="));
}

TEST_F(UpgradeLaunch, WithoutAnAccountOrASetThereIsNoTemplatePart) {
  t.config().schemeTemplateSet.assign("7");
  EXPECT_THAT(upgradeControlString(t.program), Not(HasSubstr("Templates")));
  t.config().schemeTemplateSet.release();
  t.config().accountId.assign("shop-1234");
  EXPECT_THAT(upgradeControlString(t.program), Not(HasSubstr("Templates")));
}

TEST_F(UpgradeLaunch, ALeftoverUpgradeNewReplacesTheProgramFirst) {
  t.files.put("upgrade.exe", "old");
  t.files.put("upgrade.new", "new");
  launch();
  EXPECT_EQ(t.files.content("upgrade.exe"), "new");
  EXPECT_EQ(t.files.content("upgrade.new"), std::nullopt);
}

TEST_F(UpgradeLaunch, ALeftoverUpgradeNewReplacesTheProgramAlsoWhenTheLaunchFails) {
  t.files.put("upgrade.exe", "old");
  t.files.put("upgrade.new", "new");
  t.browsers.starts = false;
  launch();
  EXPECT_EQ(t.files.content("upgrade.exe"), "new");
  EXPECT_THAT(t.screen.boxes, ElementsAre(error));
}

TEST_F(UpgradeLaunch, ALeftoverUpgradeNewTakesThePlaceOfAMissingProgram) {
  t.files.put("upgrade.new", "new");
  launch();
  EXPECT_EQ(t.files.content("upgrade.exe"), "new");
}

TEST_F(UpgradeLaunch, WithoutANewOneTheProgramStays) {
  t.files.put("upgrade.exe", "old");
  launch();
  EXPECT_EQ(t.files.content("upgrade.exe"), "old");
}

TEST_F(UpgradeLaunch, AMissingProgramIsToldAndNewStoreStillFollows) {
  t.project().projectFile.release();
  t.browsers.starts = false;
  launch();
  EXPECT_THAT(t.screen.boxes, ElementsAre(error));
  EXPECT_THAT(t.screen.posted, ElementsAre(Command::NewStore));
}

TEST_F(UpgradeLaunch, WithAProjectNothingFollows) {
  launch();
  EXPECT_THAT(t.screen.posted, IsEmpty());
  EXPECT_EQ(t.browsers.calls.size(), 1U);
}

TEST_F(UpgradeLaunch, TheFirstRunShowsTheDemoStoreOnce) {
  t.config().firstRun = 1;
  t.config().browser.assign("C:\\web.exe");
  launch();
  EXPECT_EQ(t.config().firstRun, 0);
  EXPECT_THAT(t.browsers.calls.back(), EndsWith("| C:\\Varlo\\Projects\\Demo\\Web\\index.html"));
  t.browsers.calls.clear();
  launch();
  EXPECT_EQ(t.browsers.calls.size(), 1U);
}

}  // namespace
}  // namespace varlo::test
