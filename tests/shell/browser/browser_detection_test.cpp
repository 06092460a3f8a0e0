#include "shell/browser/browser_detection.h"

#include <gtest/gtest.h>

#include "persist/life/start_up.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

class BrowserDetection : public testing::Test {
 protected:
  TestProgram t;
  FakeBrowsers browsers;

  void detect() { detectBrowsers(t.program, browsers); }
  std::string chosen() { return t.config().browser.orEmpty(); }
};

TEST_F(BrowserDetection, FindsBothInTheRegistryCutAtTheComma) {
  browsers.classes = {{"htmlfile\\DefaultIcon", "C:\\ie\\iexplore.exe,1"},
                      {"NetscapeMarkup\\DefaultIcon", "C:\\nn\\netscape.exe,-3,x"}};
  detect();
  EXPECT_EQ(t.config().browserExplorer.view(), "C:\\ie\\iexplore.exe");
  EXPECT_EQ(t.config().browserNetscape.view(), "C:\\nn\\netscape.exe");
  EXPECT_EQ(chosen(), "C:\\ie\\iexplore.exe");
}

TEST_F(BrowserDetection, TakesNetscapeWithoutExplorer) {
  browsers.classes = {{"NetscapeMarkup\\DefaultIcon", "C:\\nn\\netscape.exe"}};
  detect();
  EXPECT_TRUE(t.config().browserExplorer.isNull());
  EXPECT_EQ(chosen(), "C:\\nn\\netscape.exe");
}

TEST_F(BrowserDetection, ThePreferenceWins) {
  t.config().browser.assign("D:\\mine.exe");
  browsers.classes = {{"htmlfile\\DefaultIcon", "C:\\ie\\iexplore.exe,1"}};
  detect();
  EXPECT_EQ(chosen(), "D:\\mine.exe");
  EXPECT_EQ(t.config().browserExplorer.view(), "C:\\ie\\iexplore.exe");
}

TEST_F(BrowserDetection, ThePreferenceWinsOverTheUsualPlaces) {
  t.config().browser.assign("D:\\mine.exe");
  t.files.put("c:\\Netscape\\netscape.exe", "");
  detect();
  EXPECT_EQ(chosen(), "D:\\mine.exe");
}

TEST_F(BrowserDetection, TakesTheFirstOfTheUsualPlacesThatExists) {
  const std::vector<std::string> places{"c:\\iexplore\\iexplore.exe", "c:\\Netscape\\netscape.exe",
                                        "c:\\Program Files\\Netscape\\Navigator\\Program\\netscape.exe",
                                        "c:\\Program Files\\Netscape\\Communicator\\Program\\netscape.exe",
                                        "c:\\Program Files\\Internet Explorer\\iexplore.exe"};
  for (const std::string& place : places) {
    t.files.put(place, "");
    t.config().browser.release();
    detect();
    EXPECT_EQ(chosen(), place);
  }
}

TEST_F(BrowserDetection, WithNoneAnywhereTheFirstPlaceIsTakenAndTheLaunchFailsWithTheError) {
  detect();
  EXPECT_EQ(chosen(), "c:\\Program Files\\Internet Explorer\\iexplore.exe");
  browsers.starts = false;
  Shell shell(t.program, browsers);
  EXPECT_FALSE(openInBrowser(shell, "http://x/"));
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].title, "Browser Error");
}

TEST_F(BrowserDetection, AFoundEntryWithoutAProgramStopsTheSearch) {
  browsers.classes = {{"htmlfile\\DefaultIcon", ",1"}};
  t.files.put("c:\\Netscape\\netscape.exe", "");
  detect();
  EXPECT_EQ(chosen(), "");
}

TEST_F(BrowserDetection, TheBrowserOfTheConfigurationStaysAndTheOthersAreOffered) {
  t.files.put("C:\\Varlo\\config.ini", "browser=D:\\mine.exe\n");
  browsers.classes = {{"htmlfile\\DefaultIcon", "C:\\ie\\iexplore.exe,1"}};
  StartUp(t.program);
  detect();
  EXPECT_EQ(t.config().browser.view(), "D:\\mine.exe");
  EXPECT_EQ(t.config().browserExplorer.view(), "C:\\ie\\iexplore.exe");
}

}  // namespace
}  // namespace varlo
