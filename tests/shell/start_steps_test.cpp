#include "shell/start_steps.h"

#include <gtest/gtest.h>

#include "tests/support/fake_browsers.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

TEST(StartSteps, DetectTheBrowsersWhereTheConfigurationNamesNone) {
  TestProgram t;
  FakeBrowsers browsers;
  browsers.classes = {{"htmlfile\\DefaultIcon", "C:\\ie\\iexplore.exe,1"}};
  StartUp(t.program, startSteps(browsers));
  EXPECT_EQ(t.config().browser.view(), "C:\\ie\\iexplore.exe");
}

TEST(StartSteps, ReadTheConfigurationBeforeTheyDetect) {
  TestProgram t;
  FakeBrowsers browsers;
  browsers.classes = {{"htmlfile\\DefaultIcon", "C:\\ie\\iexplore.exe,1"}};
  t.files.put("C:\\Varlo\\config.ini", "browser=D:\\mine.exe\n");
  StartUp(t.program, startSteps(browsers));
  EXPECT_EQ(t.config().browser.view(), "D:\\mine.exe");
  EXPECT_EQ(t.config().browserExplorer.view(), "C:\\ie\\iexplore.exe");
}

}  // namespace
}  // namespace varlo
