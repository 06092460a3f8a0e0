#include "persist/dialogs/preferences_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using namespace preferences;
using testing::Contains;
using testing::ElementsAre;

class PreferencesDialogTest : public testing::Test {
 protected:
  TestProgram t;
  PreferencesDialog logic{t.program};
  FakeWindow window{logic};

  void open() {
    window.open();
    t.view.calls.clear();
  }
};

TEST_F(PreferencesDialogTest, OpensFilledFromTheDataWithTheFocusOnOk) {
  AppConfig& config = t.config();
  config.browser.assign("b.exe");
  config.browserExplorer.assign("e.exe");
  config.proxy.assign("p");
  config.proxyPort = -5;
  config.orderServer.assign("s");
  t.project().webDir.assign("w");
  window.open();
  EXPECT_THAT(window.rows(kBrowser), ElementsAre("b.exe", "e.exe"));
  EXPECT_EQ(window.text(kBrowser), "b.exe");
  EXPECT_EQ(window.text(kProxy), "p");
  EXPECT_EQ(window.text(kPort), "-5");
  EXPECT_EQ(window.text(kServer), "s");
  EXPECT_EQ(window.text(kWebDirectory), "w");
  EXPECT_TRUE(window.isChecked(kDirectoryLink));
  EXPECT_EQ(window.focused(), kOk);
  EXPECT_EQ(t.view.calls.back(), "showHelp 1000");
}

TEST_F(PreferencesDialogTest, FillingDoesNotCountAsAnEdit) {
  t.config().proxy.assign("p");
  window.open();
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_THAT(t.view.calls, testing::Not(Contains("storeForm")));
}

TEST_F(PreferencesDialogTest, ThePortIsEnabledOnlyWhileThereIsAProxy) {
  open();
  EXPECT_FALSE(window.isEnabled(kPort));
  window.type(kProxy, "p");
  EXPECT_TRUE(window.isEnabled(kPort));
  window.type(kProxy, "");
  EXPECT_FALSE(window.isEnabled(kPort));
}

TEST_F(PreferencesDialogTest, AProxyFromTheDataEnablesThePortAtOnce) {
  t.config().proxy.assign("p");
  open();
  EXPECT_TRUE(window.isEnabled(kPort));
}

TEST_F(PreferencesDialogTest, AnyEditStoresTheFormAndMarksTheProjectEvenBeforeCancel) {
  for (const ControlId control : {kBrowser, kProxy, kPort, kServer, kWebDirectory}) {
    t.config().proxy.assign(control == kPort ? "p" : nullptr);  // which enables the port
    open();
    t.project().dirty = 0;
    window.type(control, "x");
    EXPECT_THAT(t.view.calls, ElementsAre("storeForm", "refreshCommandStates"));
    EXPECT_EQ(t.project().dirty, 1);
  }
  window.press(kCancel);
  EXPECT_EQ(t.project().dirty, 1);
  EXPECT_TRUE(t.config().orderServer.isNull());
}

TEST_F(PreferencesDialogTest, GainingTheFocusShowsTheFieldsHelp) {
  open();
  window.enter(kServer);
  EXPECT_THAT(t.view.calls, ElementsAre("showHelp 1004"));
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(PreferencesDialogTest, OkReplacesEveryFieldEvenByAnEmptyText) {
  AppConfig& config = t.config();
  config.browser.assign("b");
  config.orderServer.assign("s");
  t.project().webDir.assign("w");
  config.newWindow = 1;
  open();
  window.type(kBrowser, "");
  window.type(kProxy, "proxy");
  window.type(kPort, "-80 or so");
  window.type(kServer, "");
  window.type(kWebDirectory, "C:\\web");
  window.check(kDirectoryLink, false);
  window.press(kOk);
  EXPECT_STREQ(config.browser.get(), "");
  EXPECT_STREQ(config.proxy.get(), "proxy");
  EXPECT_EQ(config.proxyPort, -80);
  EXPECT_STREQ(config.orderServer.get(), "");
  EXPECT_STREQ(t.project().webDir.get(), "C:\\web");
  EXPECT_EQ(config.directoryLink, 0);
  EXPECT_EQ(config.newWindow, 0);
  EXPECT_FALSE(window.isOpen());
  EXPECT_TRUE(t.files.log.empty());
}

TEST_F(PreferencesDialogTest, APortThatIsNoNumberIsZero) {
  t.config().proxyPort = 80;
  t.config().proxy.assign("p");
  open();
  window.type(kPort, "none");
  window.press(kOk);
  EXPECT_EQ(t.config().proxyPort, 0);
}

TEST_F(PreferencesDialogTest, AFieldIsReadUpToTwentyThousandBytes) {
  open();
  window.type(kWebDirectory, std::string(20001, 'x'));
  window.press(kOk);
  EXPECT_EQ(t.project().webDir.view().size(), 20000U);
}

TEST_F(PreferencesDialogTest, CancelAndTheCloseBoxChangeNothing) {
  t.config().proxy.assign("old");
  t.config().newWindow = 1;
  open();
  window.type(kProxy, "new");
  window.close();
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(window.result(), 0);
  EXPECT_STREQ(t.config().proxy.get(), "old");
  EXPECT_EQ(t.config().newWindow, 1);
}

TEST_F(PreferencesDialogTest, BrowseShowsThePageOfServersAndHelpThePane) {
  open();
  window.press(kBrowseServers);
  window.press(kHelp);
  EXPECT_THAT(t.view.calls,
              ElementsAre("openInBrowser https://www.varlo.example/varlo/servers.htm", "openHelpPane 1000"));
  EXPECT_TRUE(window.isOpen());
}

}  // namespace
}  // namespace varlo
