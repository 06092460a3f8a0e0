#include "generator/build/first_build_dialog.h"

#include <gtest/gtest.h>

#include "tests/support/fake_window.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using namespace first_build;
using testing::ElementsAre;

class FirstBuild : public testing::Test {
 protected:
  TestShop t;
  FirstBuildDialog logic{t.generator};
  FakeWindow window{logic};

  void SetUp() override {
    t.project().webDir.release();
    window.open();
  }
};

TEST_F(FirstBuild, StartsAsTheStoreBuildWindowDoes) {
  EXPECT_EQ(window.text(kDirectory), "C:\\Varlo\\Projects\\Shop\\Web\\");
  EXPECT_EQ(window.text(kTitle), "Toys");
  EXPECT_EQ(window.limitOf(kDirectory), 512);
  EXPECT_EQ(window.limitOf(kTitle), 0) << "no limit was set";
  EXPECT_TRUE(window.isEnabled(kOk));
}

TEST_F(FirstBuild, OkIsOfferedOnlyWithADirectory) {
  window.type(kDirectory, "");
  EXPECT_FALSE(window.isEnabled(kOk));
  window.type(kDirectory, "x");
  EXPECT_TRUE(window.isEnabled(kOk));
}

TEST_F(FirstBuild, OkMakesTheDirectoryAndKeepsItWithItsTrailingBackSlash) {
  t.generator.log.stopRequested = true;
  window.type(kDirectory, "C:\\a\\b\\");
  window.type(kTitle, "New");
  window.press(kOk);
  EXPECT_STREQ(t.project().webDir.get(), "C:\\a\\b\\");
  EXPECT_STREQ(t.project().storeTitle.get(), "New");
  EXPECT_EQ(t.files.makeFolder("C:\\a\\b"), MakeFolderResult::Exists);
  EXPECT_FALSE(t.generator.log.stopRequested);
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(window.result(), 1);
}

TEST_F(FirstBuild, ABadDirectoryIsToldAndTheDialogStays) {
  for (const char* directory : {"C:/a", "C:\\a,b"}) {
    t.screen.boxes.clear();
    window.type(kDirectory, directory);
    window.press(kOk);
    EXPECT_THAT(t.screen.boxes,
                ElementsAre(ShownBox{"Invalid Directory Name.  Must not include forward slash characters or commas.",
                                     "Error", Buttons::Ok, Icon::Stop}));
    EXPECT_TRUE(window.isOpen());
    EXPECT_TRUE(t.project().webDir.isNull());
  }
}

TEST_F(FirstBuild, ADirectoryThatCannotBeMadeIsToldAndTheDialogStays) {
  t.files.shallFail = [](const std::string&) { return true; };
  window.type(kDirectory, "C:\\a");
  window.press(kOk);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, "Unable to create directory 'C:\\a'");
  EXPECT_TRUE(window.isOpen());
  EXPECT_TRUE(t.project().webDir.isNull());
}

TEST_F(FirstBuild, CancelRaisesTheStopFlagAndChangesNothing) {
  window.type(kTitle, "New");
  window.press(kCancel);
  EXPECT_TRUE(t.generator.log.stopRequested);
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(window.result(), 0);
  EXPECT_TRUE(t.project().webDir.isNull());
  EXPECT_STREQ(t.project().storeTitle.get(), "Toys");
}

TEST_F(FirstBuild, TheCloseBoxIsACancel) {
  window.close();
  EXPECT_TRUE(t.generator.log.stopRequested);
  EXPECT_FALSE(window.isOpen());
}

}  // namespace
}  // namespace varlo
