#include "shell/window/toolbar.h"

#include <gtest/gtest.h>

#include "tests/support/test_shell.h"

namespace varlo {
namespace {

// The positions in one line: image numbers, and "|" for a separator.
std::string shownButtons() {
  std::string text;
  for (const ToolbarButton& button : toolbarButtons()) {
    text += button.command == Command::None ? "| " : std::to_string(button.image) + " ";
  }
  return text;
}

TEST(Toolbar, HasItsImagesIn21Positions) {
  EXPECT_EQ(toolbarButtons().size(), 21U);
  EXPECT_EQ(shownButtons(), "0 1 2 | 3 4 6 | 8 9 11 10 | 7 | | | 5 | | | ");
}

TEST(Toolbar, EachButtonSendsTheCommandOfItsName) {
  std::vector<std::string> tips;
  for (const ToolbarButton& button : toolbarButtons()) {
    if (button.command != Command::None) tips.emplace_back(toolTipOf(button.command));
  }
  EXPECT_EQ(tips, (std::vector<std::string>{"New Store", "Open Store", "Save", "Upgrade", "Help", "View Orders",
                                            "New Product", "New Shelf", "New List", "New Category", "Build Store",
                                            "Preview Page"}));
  EXPECT_EQ(toolbarButtons()[8].command, Command::NewProduct);
  EXPECT_EQ(toolbarButtons()[17].command, Command::PreviewPage);
}

TEST(Toolbar, ACommandWithoutAButtonHasNoTip) {
  EXPECT_EQ(toolTipOf(Command::Quit), "");
  EXPECT_EQ(toolTipOf(Command::None), "");
}

TEST(Toolbar, AToolTipGoesWithTheHelpOfItsCommand) {
  test::TestShell t;
  EXPECT_EQ(t.logic.toolTip(Command::Save), "Save");
  EXPECT_EQ(t.view.helps, std::vector{static_cast<int>(Command::Save)});
}

}  // namespace
}  // namespace varlo
