#include "shell/browser/build_commands.h"

#include <memory>

#include <gtest/gtest.h>

#include "generator/build/first_build_dialog.h"
#include "generator/build/store_build_dialog.h"
#include "shell/state/shell.h"
#include "shell/window/commands.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_shell.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PreviewCommand : public testing::Test {
 protected:
  TestShop t;
  FakeBrowsers browsers;
  Shell shell{t.program, browsers};

  void SetUp() override {
    Select(t.project(), t.ball);
    t.config().browser.assign("b");
    t.config().newWindow = 1;
    t.files.put("C:\\Varlo\\Projects\\Shop\\template\\product.htm", "product $TITLE");
    t.files.put("C:\\Varlo\\Projects\\Shop\\template\\shelf.htm", "shelf $TITLE <SHELF>$TITLE</SHELF>");
    t.files.put("C:\\Varlo\\template\\trolley.dat", "trolley");
    t.files.put("C:\\Varlo\\template\\register.dat", "register");
  }
};

TEST_F(PreviewCommand, MakesThePageWithTheCartAroundItAndShowsIt) {
  previewCurrent(shell);
  EXPECT_EQ(t.site("2.htm"), "product Ball");
  EXPECT_EQ(t.site("trolley.html"), "trolley");
  EXPECT_EQ(t.site("register.html"), "register");
  EXPECT_THAT(t.site("ftmp.htm"), HasSubstr("SRC=\"2.htm\""));
  EXPECT_THAT(browsers.calls, ElementsAre("start b | C:\\Web\\ftmp.htm"));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.screen.waitCursor, ElementsAre(true, false));
}

TEST_F(PreviewCommand, MakesThePathsDoubleBackSlashesSingle) {
  t.project().webDir.assign("C:\\Web\\\\");
  previewCurrent(shell);
  EXPECT_THAT(browsers.calls, ElementsAre("start b | C:\\Web\\ftmp.htm"));
}

TEST_F(PreviewCommand, DoesNothingWithoutACurrentNode) {
  Select(t.project(), nullptr);
  t.config().orderServer.release();
  previewCurrent(shell);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(browsers.calls, IsEmpty());
}

TEST_F(PreviewCommand, NeedsAnOrderServer) {
  t.config().orderServer.release();
  previewCurrent(shell);
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{"No Varlo server selected.  Please select an Varlo server address in Preferences.",
                                   "Configuration Error", Buttons::Ok, Icon::Stop}));
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(t.screen.waitCursor, IsEmpty());
}

TEST_F(PreviewCommand, OfAProductInAShelfShowsThePageOfTheShelf) {
  for (const NodeKind kind : {NodeKind::Shelf, NodeKind::List}) {
    t.home->kind = kind;
    t.home->templateName.assign("shelf.htm");
    previewCurrent(shell);
    EXPECT_EQ(t.site("1.htm"), "shelf Home Ball");
    EXPECT_EQ(t.site("2.htm"), "(no file)");
    EXPECT_THAT(t.site("ftmp.htm"), HasSubstr("SRC=\"1.htm\""));
    EXPECT_EQ(t.project().currentNode, t.ball);
    EXPECT_EQ(t.project().treeNode, t.ball);
  }
}

// The holder is current only while the page is made.
TEST_F(PreviewCommand, TheNodeIsCurrentAgainBeforeTheBrowserIsAsked) {
  struct LookingBrowsers : FakeBrowsers {
    StoreProject* project = nullptr;
    StoreNode* seen = nullptr;
    bool start(const std::string& program, const std::string& argument) override {
      seen = project->currentNode;
      return FakeBrowsers::start(program, argument);
    }
  } looking;
  looking.project = &t.project();
  t.home->kind = NodeKind::Shelf;
  Shell looked(t.program, looking);
  previewCurrent(looked);
  EXPECT_EQ(looking.seen, t.ball);
}

TEST_F(PreviewCommand, WithoutADirectoryAsksForOneFirst) {
  t.project().webDir.release();
  t.screen.onDialog = [](DialogLogic& logic) {
    FakeWindow window(logic);
    window.open();
    window.type(first_build::kDirectory, "C:\\New\\Web");
    window.type(first_build::kTitle, "Other toys");
    window.press(kOk);
    return window.result();
  };
  previewCurrent(shell);
  EXPECT_THAT(t.screen.dialogs, ElementsAre(first_build::kWindow));
  EXPECT_STREQ(t.project().webDir.get(), "C:\\New\\Web");
  EXPECT_STREQ(t.project().storeTitle.get(), "Other toys");
  EXPECT_THAT(browsers.calls, ElementsAre("start b | C:\\New\\Web\\ftmp.htm"));
}

TEST_F(PreviewCommand, StopsWhenTheDirectoryIsNotGiven) {
  t.project().webDir.release();
  t.screen.onDialog = [](DialogLogic& logic) {
    FakeWindow window(logic);
    window.open();
    window.press(kCancel);
    return window.result();
  };
  previewCurrent(shell);
  EXPECT_TRUE(shell.generator.log.stopRequested);
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(browsers.calls, IsEmpty());
  EXPECT_THAT(t.screen.waitCursor, IsEmpty());
}

TEST_F(PreviewCommand, AStopFlagOfAnEarlierBuildDoesNotStopIt) {
  shell.generator.log.stopRequested = true;
  previewCurrent(shell);
  EXPECT_EQ(browsers.calls.size(), 1U);
}

TEST_F(PreviewCommand, WithADirectoryAsksNothing) {
  previewCurrent(shell);
  EXPECT_THAT(t.screen.dialogs, IsEmpty());
}

TEST_F(PreviewCommand, TakesTheFirstSchemeOfTheFirstStyleWhereNoneIsChosen) {
  Scheme* first = SchemeInit(nullptr);
  first->name.assign("Blue");
  first->prev = t.config().schemeStyles;
  t.config().schemeStyles->schemes = first;
  t.project().projectScheme = nullptr;
  previewCurrent(shell);
  EXPECT_EQ(t.project().projectScheme, first);
  EXPECT_EQ(browsers.calls.size(), 1U);
}

TEST_F(PreviewCommand, WithoutAnySchemeTellsItAndLeavesCursorAndCurrentNodeAsTheyAre) {
  t.project().projectScheme = nullptr;
  t.home->kind = NodeKind::Shelf;
  previewCurrent(shell);
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{"No scheme defined for current store.", "Error", Buttons::Ok, Icon::None}));
  EXPECT_THAT(t.screen.waitCursor, ElementsAre(true));
  EXPECT_TRUE(t.program.waitCursorShown);
  EXPECT_EQ(t.project().currentNode, t.home);
  EXPECT_THAT(t.files.log, IsEmpty());
  EXPECT_THAT(browsers.calls, IsEmpty());
}

TEST_F(PreviewCommand, NeitherSavesNorMarksTheProject) {
  for (const int dirty : {0, 1}) {
    t.project().dirty = dirty;
    previewCurrent(shell);
    EXPECT_EQ(t.project().dirty, dirty);
  }
  EXPECT_EQ(t.files.content("C:\\Varlo\\Projects\\Shop\\Shop.stp"), std::nullopt);
}

TEST_F(PreviewCommand, ABrowserThatDoesNotStartIsToldAndNothingElseChanges) {
  browsers.starts = false;
  previewCurrent(shell);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].title, "Browser Error");
  EXPECT_EQ(t.site("2.htm"), "product Ball");
  EXPECT_EQ(t.project().currentNode, t.ball);
  EXPECT_THAT(t.screen.waitCursor, ElementsAre(true, false));
}

TEST_F(PreviewCommand, ErrorsOfThePageGoWhereThoseOfABuildGo) {
  t.files.put("C:\\Varlo\\Projects\\Shop\\template\\product.htm", "$BUY");
  t.ball->productCode.release();
  previewCurrent(shell);
  EXPECT_EQ(shell.generator.log.errorCount, 1);
}

class BuildStoreCommand : public testing::Test {
 protected:
  TestShell t;
  std::vector<std::unique_ptr<FakeWindow>> windows;

  void SetUp() override {
    t.attach();
    t.config().orderServer.assign("orders.example");
    t.project().projectFile.assign(kShopPath);
    t.project().currentNode = AddCategory(t.project(), "Home");
    t.screen.onOpenDialog = [this](const std::shared_ptr<DialogLogic>& logic) {
      windows.push_back(std::make_unique<FakeWindow>(logic));
      windows.back()->open();
      return windows.back().get();
    };
  }
  void run() { dispatchCommand(t.shell, Command::BuildStore); }
};

TEST_F(BuildStoreCommand, OpensTheStoreBuildWindow) {
  run();
  EXPECT_THAT(t.screen.dialogs, ElementsAre(store_build::kWindow));
  EXPECT_EQ(t.shell.generator.log.buildWindow, t.shell.buildWindow.logic());
}

TEST_F(BuildStoreCommand, BringsTheWindowThatIsOpenToTheFront) {
  run();
  EXPECT_FALSE(windows[0]->inFront());
  run();
  EXPECT_TRUE(windows[0]->inFront());
  EXPECT_EQ(windows.size(), 1U);
}

TEST_F(BuildStoreCommand, OpensAnotherOnceTheFirstWasClosed) {
  run();
  windows[0]->close();
  run();
  ASSERT_EQ(windows.size(), 2U);
  EXPECT_FALSE(windows[0]->inFront());
  EXPECT_EQ(t.shell.generator.log.buildWindow, t.shell.buildWindow.logic());
}

TEST_F(BuildStoreCommand, WithoutAServerIsToldAndOpensNothing) {
  t.config().orderServer.release();
  run();
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].title, "Configuration Error");
  EXPECT_THAT(t.screen.dialogs, IsEmpty());
}

TEST_F(BuildStoreCommand, WithoutACurrentNodeDoesNotEvenAskForTheServer) {
  t.config().orderServer.release();
  t.project().currentNode = nullptr;
  run();
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.screen.dialogs, IsEmpty());
}

TEST_F(BuildStoreCommand, AWindowThatCannotBeMadeIsTriedAgain) {
  t.screen.onOpenDialog = nullptr;
  run();
  run();
  EXPECT_THAT(t.screen.dialogs, ElementsAre(store_build::kWindow, store_build::kWindow));
}

// Nothing is there that its pages are made of, so the build shows box upon box.
class BuildWithBoxes : public BuildStoreCommand {
 protected:
  static constexpr const char* kOtherPath = "C:\\Varlo\\Projects\\Other\\Other.stp";

  void SetUp() override {
    BuildStoreCommand::SetUp();
    t.nameShop();
    t.files.put(kOtherPath, "VERSION=107001\nNODE0=Books\n");
    t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Web");
    SchemeRecord* style = SchemeInit(nullptr);
    t.config().schemeStyles = t.config().currentStyle = style;
    t.project().currentNode = nullptr;
    t.project().root = nullptr;
    t.open();
    t.runPosted();
    run();
  }
  void build() { windows[0]->press(store_build::kBuild); }
  std::string logged(std::size_t row) { return windows[0]->rows(store_build::kLog).at(row); }
};

TEST_F(BuildWithBoxes, NoCommandTakesTheStoreFromUnderTheWalk) {
  int waits = 0;
  t.screen.whileWaiting = [&] {
    ++waits;
    t.screen.files = {kOtherPath};
    t.logic.command(Command::OpenStore);
    t.logic.command(Command::TreeDelete);
    t.logic.closeRequested();
  };
  build();
  EXPECT_GE(waits, 4);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball),Bats,Rows)");
  EXPECT_THAT(t.screen.fileRequests, IsEmpty());
  EXPECT_FALSE(t.window.ended());
}

TEST_F(BuildWithBoxes, NoSecondBuildBegins) {
  build();
  const std::size_t boxes = t.screen.boxes.size();
  t.screen.boxes.clear();
  t.screen.whileWaiting = [&] { build(); };
  build();
  EXPECT_EQ(t.screen.boxes.size(), boxes);
}

TEST_F(BuildWithBoxes, TheWindowCanBeClosedAndNoOtherTakesItsPlace) {
  t.screen.whileWaiting = [&] {
    windows[0]->close();
    run();
  };
  build();
  EXPECT_EQ(windows.size(), 1U);
  EXPECT_EQ(t.shell.generator.log.buildWindow, nullptr);
}

TEST_F(BuildWithBoxes, TheChooserOfTheDirectoryHasTheProgramToItself) {
  t.screen.whileWaiting = [&] { t.logic.command(Command::TreeDelete); };
  windows[0]->press(store_build::kBrowse);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball),Bats,Rows)");
  EXPECT_EQ(t.screen.folderTitles.size(), 1U);
}

}  // namespace
}  // namespace varlo
