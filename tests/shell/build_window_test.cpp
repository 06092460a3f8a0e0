#include "shell/build_window.h"

#include <memory>

#include <gtest/gtest.h>

#include "generator/build/store_build_dialog.h"
#include "platform/control_ids.h"
#include "shell/commands.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BuildStoreCommand : public testing::Test {
 protected:
  TestShell t;
  std::vector<std::unique_ptr<FakeWindow>> windows;

  void SetUp() override {
    t.attach();
    t.config().orderServer.assign("orders.example");
    t.project().projectFile.assign(kShopPath);
    t.project().currentNode = AddCategory(t.project(), "Home");
    t.screen.onOpenDialog = [this](int, DialogLogic& logic) {
      windows.push_back(std::make_unique<FakeWindow>(logic));
      windows.back()->open();
      return windows.back().get();
    };
  }
  void run() { dispatchCommand(t.shell, Command::BuildStore); }
};

TEST_F(BuildStoreCommand, OpensTheStoreBuildWindow) {
  run();
  EXPECT_THAT(t.screen.dialogs, ElementsAre(dialog::kStoreBuild));
  EXPECT_EQ(t.shell.generator.log.buildWindow, t.shell.buildDialog.get());
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
  EXPECT_EQ(t.shell.generator.log.buildWindow, t.shell.buildDialog.get());
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
  EXPECT_THAT(t.screen.dialogs, ElementsAre(dialog::kStoreBuild, dialog::kStoreBuild));
}

}  // namespace
}  // namespace varlo::test
