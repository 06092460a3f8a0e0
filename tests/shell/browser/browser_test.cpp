#include "shell/browser/browser.h"

#include <gtest/gtest.h>

#include "shell/state/shell.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kExplorer = "C:\\Internet\\iexplore.exe";

class Browser : public testing::Test {
 protected:
  TestProgram t;
  FakeBrowsers browsers;
  Shell shell{t.program, browsers};

  void runExplorer() { browsers.conversations = {"iexplore/WWW_Activate", "iexplore/WWW_OpenURL"}; }
  std::string startedWith(std::string_view url) {
    browsers.calls.clear();
    EXPECT_TRUE(launchBrowser(shell, "b", url, 1));
    EXPECT_EQ(browsers.calls.size(), 1U);
    return browsers.calls.at(0).substr(std::string_view("start b | ").size());
  }
};

TEST_F(Browser, ARunningOneIsBroughtToTheFrontAndOpensTheAddressInItsWindow) {
  runExplorer();
  EXPECT_TRUE(launchBrowser(shell, kExplorer, "http://x/", 0));
  EXPECT_THAT(browsers.calls, ElementsAre("connect iexplore/WWW_Activate", "request 0xFFFFFFFF,0x0 within 10000",
                                          "disconnect", "connect iexplore/WWW_OpenURL",
                                          "request \"http://x/\",,0xFFFFFFFF within 10000", "disconnect"));
  EXPECT_FALSE(shell.launchBusy);
}

TEST_F(Browser, AnyOtherNewWindowOpensTheAddressInANewWindow) {
  runExplorer();
  for (const int newWindow : {2, -1, 100}) {
    browsers.calls.clear();
    EXPECT_TRUE(launchBrowser(shell, kExplorer, "http://x/", newWindow));
    ASSERT_EQ(browsers.calls.size(), 6U);
    EXPECT_EQ(browsers.calls[4], "request \"http://x/\",,0x0 within 10000");
  }
}

TEST_F(Browser, NewWindow1NeverOpensAConversation) {
  runExplorer();
  EXPECT_TRUE(launchBrowser(shell, kExplorer, "http://x/", 1));
  EXPECT_THAT(browsers.calls, ElementsAre("start C:\\Internet\\iexplore.exe | http://x/"));
  EXPECT_FALSE(shell.launchBusy);
}

TEST_F(Browser, OneThatRefusesTheAddressAfterComingToTheFrontCountsAsDone) {
  browsers.conversations = {"iexplore/WWW_Activate"};
  EXPECT_TRUE(launchBrowser(shell, kExplorer, "http://x/", 0));
  EXPECT_THAT(browsers.calls, ElementsAre("connect iexplore/WWW_Activate", "request 0xFFFFFFFF,0x0 within 10000",
                                          "disconnect", "no answer iexplore/WWW_OpenURL"));
  EXPECT_FALSE(shell.launchBusy);
}

TEST_F(Browser, WithoutARunningOneANewOneIsStarted) {
  EXPECT_TRUE(launchBrowser(shell, kExplorer, "http://x/", 0));
  EXPECT_THAT(browsers.calls,
              ElementsAre("no answer iexplore/WWW_Activate", "start C:\\Internet\\iexplore.exe | http://x/"));
  EXPECT_FALSE(shell.launchBusy);
}

TEST_F(Browser, OneThatCanNotBeStartedAnswersFalse) {
  browsers.starts = false;
  for (const int newWindow : {0, 1, 2}) EXPECT_FALSE(launchBrowser(shell, kExplorer, "http://x/", newWindow));
  EXPECT_FALSE(shell.launchBusy);
}

TEST_F(Browser, ThePathWithoutABackSlashConnectsToNetscapeWhateverTheName) {
  for (const char* browser : {"iexplore.exe", "lynx", "", "C:/b/opera.exe"}) {
    browsers.calls.clear();
    launchBrowser(shell, browser, "http://x/", 0);
    EXPECT_EQ(browsers.calls.at(0), "no answer netscape/WWW_Activate");
  }
}

TEST_F(Browser, TheServiceIsTheProgramsNameUpToItsFirstPoint) {
  launchBrowser(shell, "C:\\a.b\\mozilla.1.7.exe", "http://x/", 0);
  EXPECT_EQ(browsers.calls.at(0), "no answer mozilla/WWW_Activate");
}

TEST_F(Browser, AnAddressWithoutAColonIsAFileBelowTheWorkingFolder) {
  EXPECT_EQ(startedWith("Projects\\Demo\\Web\\index.html"), "C:\\Varlo\\Projects\\Demo\\Web\\index.html");
}

TEST_F(Browser, ADrivePathAndAMailAddressPassUnchanged) {
  EXPECT_EQ(startedWith("D:\\shop\\ftmp.htm"), "D:\\shop\\ftmp.htm");
  EXPECT_EQ(startedWith("mailto:me@x"), "mailto:me@x");
}

TEST_F(Browser, AnAddressIsCutAt255Characters) {
  const std::string address = "http:" + std::string(300, 'x');
  EXPECT_EQ(startedWith(address), address.substr(0, 255));
}

TEST_F(Browser, AFileIsCutAt256CharactersBehindTheFolder) {
  const std::string file(300, 'x');
  EXPECT_EQ(startedWith(file), "C:\\Varlo\\" + file.substr(0, 256));
}

TEST_F(Browser, TheWorkingFolderIsCutAt200Characters) {
  struct DeepFiles : FakeFiles {
    std::string workingFolder() override { return "C:\\" + std::string(300, 'd'); }
  } files;
  Program program(files, t.clock, t.screen, t.clipboard, t.view);
  Shell deep(program, browsers);
  EXPECT_TRUE(launchBrowser(deep, "b", "f.htm", 1));
  EXPECT_THAT(browsers.calls, ElementsAre("start b | C:\\" + std::string(197, 'd') + "\\f.htm"));
}

TEST_F(Browser, WithoutAnAddressNothingIsLaunched) {
  EXPECT_FALSE(launchBrowser(shell, kExplorer, "", 0));
  EXPECT_THAT(browsers.calls, IsEmpty());
  EXPECT_FALSE(shell.launchBusy);
}

TEST_F(Browser, WhileOneIsSpokenToASecondLaunchAnswersFalse) {
  shell.launchBusy = true;
  EXPECT_FALSE(launchBrowser(shell, kExplorer, "http://x/", 0));
  EXPECT_THAT(browsers.calls, IsEmpty());
  EXPECT_TRUE(shell.launchBusy);
}

// The system pumps messages while it waits for a conversation.
struct PumpingBrowsers : FakeBrowsers {
  Shell* shell = nullptr;
  int launches = 0;
  bool secondShown = true;
  std::unique_ptr<Conversation> connect(const std::string& service, const std::string& topic) override {
    if (launches++ == 0) secondShown = openInBrowser(*shell, "http://second/");
    return FakeBrowsers::connect(service, topic);
  }
};

TEST_F(Browser, ASecondLaunchFromAPumpedMessageShowsTheErrorAndTheFirstGoesOn) {
  PumpingBrowsers pumping;
  pumping.conversations = {"iexplore/WWW_Activate", "iexplore/WWW_OpenURL"};
  Shell pumped(t.program, pumping);
  pumping.shell = &pumped;
  t.config().browser.assign(kExplorer);
  EXPECT_TRUE(openInBrowser(pumped, "http://first/"));
  EXPECT_FALSE(pumping.secondShown);
  EXPECT_EQ(pumping.calls.size(), 6U);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_FALSE(pumped.launchBusy);
}

TEST_F(Browser, OpenInBrowserUsesThePreferences) {
  runExplorer();
  t.config().browser.assign(kExplorer);
  t.config().newWindow = 2;
  EXPECT_TRUE(openInBrowser(shell, "http://x/"));
  EXPECT_EQ(browsers.calls.at(4), "request \"http://x/\",,0x0 within 10000");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(Browser, OpenInBrowserTellsWhenItFailed) {
  browsers.starts = false;
  EXPECT_FALSE(openInBrowser(shell, "http://x/"));
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{"\"Unable to open the specified Browser. Please check the  Preferences.\"",
                                   "Browser Error", Buttons::Ok, Icon::Exclamation}));
}

}  // namespace
}  // namespace varlo
