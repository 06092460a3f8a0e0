#include "core/program/program.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace varlo {
namespace {

using test::ShownBox;
using test::TestProgram;

// A clipboard that another program holds.
struct TakenClipboard : Clipboard {
  bool putText(std::string_view) override { return false; }
  std::string text() override { return {}; }
  bool offersText() override { return false; }
};

// Notes what the flag says when the commands are refreshed.
struct FlagView : View {
  void refreshCommandStates() override { seen = program->project.dirty; }
  Program* program = nullptr;
  int seen = -1;
};

TEST(Program, StartsCleanWithoutAProject) {
  TestProgram fakes;
  EXPECT_EQ(fakes.project().dirty, 0);
  EXPECT_TRUE(fakes.project().projectFile.isNull());
  EXPECT_EQ(fakes.project().root, nullptr);
  EXPECT_FALSE(fakes.program.waitCursorShown);
  EXPECT_EQ(fakes.program.slots.size(), 20U);
}

TEST(SetDirty, StoresTheFlagAndRefreshesTheCommands) {
  TestProgram fakes;
  SetDirty(fakes.program, 1);
  EXPECT_EQ(fakes.project().dirty, 1);
  EXPECT_EQ(fakes.view.calls, std::vector<std::string>{"refreshCommandStates"});
  SetDirty(fakes.program, 0);
  EXPECT_EQ(fakes.project().dirty, 0);
  EXPECT_EQ(fakes.view.calls.size(), 2U);
}

TEST(SetDirty, RefreshesAlsoWhenTheFlagIsAlreadySo) {
  TestProgram fakes;
  SetDirty(fakes.program, 1);
  SetDirty(fakes.program, 1);
  EXPECT_EQ(fakes.view.calls.size(), 2U);
}

TEST(SetDirty, TheCommandsSeeTheNewFlag) {
  TestProgram fakes;
  FlagView view;
  Program program(fakes.files, fakes.clock, fakes.screen, fakes.clipboard, view);
  view.program = &program;
  SetDirty(program, 1);
  EXPECT_EQ(view.seen, 1);
  SetDirty(program, 0);
  EXPECT_EQ(view.seen, 0);
}

TEST(ErrorBox, HasTheTitleErrorAndOneOkButton) {
  TestProgram fakes;
  ErrorBox(fakes.program, "S101: File Write Error");
  const std::vector<ShownBox> expected{{"S101: File Write Error", "Error", Buttons::Ok, Icon::None}};
  EXPECT_EQ(fakes.screen.boxes, expected);
}

TEST(WaitCursor, GoesOnAndBack) {
  TestProgram fakes;
  EXPECT_NE(WaitCursorOn(fakes.program), 0);
  EXPECT_NE(WaitCursorOff(fakes.program), 0);
  EXPECT_EQ(fakes.screen.waitCursor, (std::vector<bool>{true, false}));
}

TEST(WaitCursor, NestedCallsDoNothing) {
  TestProgram fakes;
  WaitCursorOn(fakes.program);
  EXPECT_EQ(WaitCursorOn(fakes.program), 0);
  EXPECT_EQ(WaitCursorOn(fakes.program), 0);
  EXPECT_EQ(fakes.screen.waitCursor, std::vector<bool>{true});
  WaitCursorOff(fakes.program);
  EXPECT_EQ(WaitCursorOff(fakes.program), 0);
  EXPECT_EQ(fakes.screen.waitCursor, (std::vector<bool>{true, false}));
}

TEST(WaitCursor, CanBeShownAgain) {
  TestProgram fakes;
  WaitCursorOn(fakes.program);
  WaitCursorOff(fakes.program);
  EXPECT_NE(WaitCursorOn(fakes.program), 0);
  EXPECT_EQ(fakes.screen.waitCursor, (std::vector<bool>{true, false, true}));
}

TEST(WaitCursor, OffWithoutOnDoesNothing) {
  TestProgram fakes;
  EXPECT_EQ(WaitCursorOff(fakes.program), 0);
  EXPECT_TRUE(fakes.screen.waitCursor.empty());
}

TEST(ClipboardPutText, ReplacesTheContent) {
  TestProgram fakes;
  EXPECT_EQ(ClipboardPutText(fakes.program, "first"), 1);
  EXPECT_EQ(ClipboardPutText(fakes.program, "caf\xE9\r\n"), 1);
  EXPECT_EQ(fakes.clipboard.text(), "caf\xE9\r\n");
  EXPECT_EQ(ClipboardPutText(fakes.program, ""), 1);
  EXPECT_EQ(fakes.clipboard.text(), "");
}

TEST(ClipboardPutText, IsZeroWhenTheClipboardCannotBeHad) {
  TestProgram fakes;
  TakenClipboard clipboard;
  Program program(fakes.files, fakes.clock, fakes.screen, clipboard, fakes.view);
  EXPECT_EQ(ClipboardPutText(program, "text"), 0);
}

}  // namespace
}  // namespace varlo
