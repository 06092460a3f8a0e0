// Making, disabling and moving nodes with the mouse, and what else the main window does under it.

#include <array>
#include <fstream>

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/window_faults.h"

namespace varlo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const TreePath kHerbal{"Home", "Tea", "Herbal infusions"};  // a list

RECT placeOf(HWND window) {
  RECT place{};
  ::GetWindowRect(window, &place);
  return place;
}

class Nodes : public DesktopTest {
 protected:
  Nodes() { start(); }

  [[nodiscard]] HWND toolbar() const { return program_->control(main_window::kToolbar); }
  [[nodiscard]] HWND header() const { return reinterpret_cast<HWND>(::SendMessageA(list(), LVM_GETHEADER, 0, 0)); }
  [[nodiscard]] POINT tool(Command command) const {
    RECT place{};
    ::SendMessageA(toolbar(), TB_GETRECT, static_cast<WPARAM>(command), reinterpret_cast<LPARAM>(&place));
    ::MapWindowPoints(toolbar(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  }
  [[nodiscard]] int iconOf(const TreePath& path) const { return IconOf(tree(), FindItem(tree(), path)); }
  void click(ControlId button) { Click(program(), CentreOf(program().control(button))); }

  // Opens the popup menu at a point and goes through it by its letters.
  void choose(POINT point, const std::string& letters) {
    RightClick(program(), point);
    ASSERT_NE(WaitForPopup(), nullptr);
    for (const char letter : letters) PressKey(program(), static_cast<WORD>(letter));
    EXPECT_TRUE(WaitFor([] { return ::FindWindowA("#32768", nullptr) == nullptr; }));
    program().settle();
  }
  void chooseEntry(POINT point, const std::string& label) {
    RightClick(program(), point);
    const HWND popup = WaitForPopup();
    ASSERT_NE(popup, nullptr);
    const std::vector<PopupEntry> entries = EntriesOf(popup);
    int index = 0;
    while (index < static_cast<int>(entries.size()) && entries[static_cast<std::size_t>(index)].label != label)
      ++index;
    ASSERT_LT(index, static_cast<int>(entries.size())) << label;
    ASSERT_TRUE(entries[static_cast<std::size_t>(index)].enabled) << label;
    ChooseEntry(program(), popup, index);
  }
  POINT item(const TreePath& path) { return CentreOfItem(tree(), FindItem(tree(), path)); }
  // The new node is the last below its parent, selected, shown in the form, and a change.
  void expectNew(const TreePath& parent, const std::string& title) {
    EXPECT_EQ(below(parent).back(), title);
    EXPECT_EQ(selectedItem(), title);
    EXPECT_EQ(formTitle(), title);
    EXPECT_TRUE(canSave());
  }
};

TEST_F(Nodes, CommandButtonsMakeNodes) {
  const std::array<std::pair<ControlId, const char*>, 4> buttons{{{main_window::kProduct, "New Product"},
                                                                  {main_window::kCategory, "New Category"},
                                                                  {main_window::kShelf, "New Shelf"},
                                                                  {main_window::kList, "New List"}}};
  for (const auto& [button, title] : buttons) {
    pick(kBlackTea);
    click(button);
    expectNew(kBlackTea, title);
  }
  TakePicture(window(), "new_nodes");
}

TEST_F(Nodes, ToolbarMakesNodes) {
  const std::array<std::pair<Command, const char*>, 4> tools{{{Command::NewProduct, "New Product"},
                                                              {Command::NewCategory, "New Category"},
                                                              {Command::NewShelf, "New Shelf"},
                                                              {Command::NewList, "New List"}}};
  for (const auto& [command, title] : tools) {
    pick(kBlackTea);
    Click(program(), tool(command));
    expectNew(kBlackTea, title);
  }
}

TEST_F(Nodes, PopupMenuOfTheTreeMakesNodes) {
  const std::array<std::pair<const char*, const char*>, 4> entries{
      {{"NP", "New Product"}, {"NC", "New Category"}, {"NS", "New Shelf"}, {"NL", "New List"}}};
  pick(kBlackTea);
  for (const auto& [letters, title] : entries) {
    choose(item(kBlackTea), letters);
    expectNew(kBlackTea, title);
  }
}

TEST_F(Nodes, PopupMenuOfTheListMakesANodeBesideTheRow) {
  pick(kBlackTea);
  choose(CentreOfRow(list(), 1), "NP");
  EXPECT_EQ(below(kBlackTea).at(2), "New Product");
  EXPECT_EQ(selectedItem(), "New Product");
  EXPECT_EQ(formTitle(), "New Product");
  EXPECT_EQ(CellsOf(list(), 0), below(kBlackTea)) << "The list shows the product among its siblings.";
}

TEST_F(Nodes, NothingButProductsIsMadeInAList) {
  pick(kHerbal);
  for (const ControlId button : {main_window::kCategory, main_window::kShelf, main_window::kList}) {
    EXPECT_EQ(::IsWindowEnabled(program().control(button)), FALSE) << button;
  }
  click(main_window::kProduct);
  expectNew(kHerbal, "New Product");
  EXPECT_NE(::IsWindowEnabled(program().field(inventory::kTitle)), FALSE);
  EXPECT_EQ(::IsWindowEnabled(program().field(inventory::kFileName)), FALSE) << "It has no page of its own.";
}

TEST_F(Nodes, DisableAndEnableInTheTreeChangeTheIconAndNothingElse) {
  pick(kBlackTea);
  click(main_window::kShelf);
  program().command(Command::Save);
  const std::array<std::tuple<TreePath, int, int>, 4> kinds{{{kBlackTea, 10, 17},
                                                             {kAssam, 11, 19},
                                                             {{"Home", "Tea", "Black tea", "New Shelf"}, 20, 21},
                                                             {kHerbal, 23, 24}}};
  for (const auto& [path, enabled, disabled] : kinds) {
    ASSERT_EQ(iconOf(path), enabled) << path.back();
    chooseEntry(item(path), "Disable");
    EXPECT_EQ(iconOf(path), disabled) << path.back();
  }
  pick(kBlackTea);
  TakePicture(window(), "disabled");
  EXPECT_FALSE(canSave());
  for (const auto& [path, enabled, disabled] : kinds) {
    chooseEntry(item(path), "Enable");
    EXPECT_EQ(iconOf(path), enabled) << path.back();
  }
  EXPECT_FALSE(canSave());
}

TEST_F(Nodes, DisableInTheListLeavesTheOldIconInTheTree) {
  pick(kBlackTea);
  Click(program(), CentreOfRow(list(), 0));
  ClickWith(program(), VK_CONTROL, CentreOfRow(list(), 1));
  chooseEntry(CentreOfRow(list(), 1), "Disable");
  EXPECT_EQ(RowIcon(list(), 0), 19);
  EXPECT_EQ(RowIcon(list(), 1), 19);
  EXPECT_EQ(RowIcon(list(), 2), 11);
  EXPECT_EQ(iconOf(kAssam), 11);
  chooseEntry(CentreOfRow(list(), 1), "Enable");
  EXPECT_EQ(RowIcon(list(), 0), 11);
  EXPECT_EQ(RowIcon(list(), 1), 11);
  EXPECT_FALSE(canSave());
}

TEST_F(Nodes, DoubleClickOnARowGoesThereInTheTree) {
  pick(kTea);
  DoubleClick(program(), CentreOfRow(list(), 0));
  EXPECT_EQ(selectedItem(), "Black tea");
  EXPECT_EQ(formTitle(), "Black tea");
  EXPECT_EQ(CellsOf(list(), 0), below(kBlackTea));
}

TEST_F(Nodes, DragOfTheRootDoesNothing) {
  const std::vector<std::string> before = below({"Home"});
  Drag(program(), item({"Home"}), item({"Home", "Gifts"}));
  EXPECT_THAT(LabelsBelow(tree(), nullptr), ElementsAre("Home"));
  EXPECT_EQ(below({"Home"}), before);
  EXPECT_EQ(formTitle(), "Home");
}

TEST_F(Nodes, DragThatEndsOverTheItemListChangesNothing) {
  pick(kTea);
  const std::vector<std::string> before = below(kTea);
  Drag(program(), item(kBlackTea), CentreOfRow(list(), 1), [&] { TakePicture(window(), "dragging_over_list"); });
  EXPECT_EQ(below(kTea), before);
  EXPECT_EQ(CellsOf(list(), 0), before);
  EXPECT_EQ(formTitle(), "Tea");
  EXPECT_THAT(SelectedRows(list()), ElementsAre(1)) << "The highlight stays until the next selection.";
}

TEST_F(Nodes, DropOnAProductGoesToItsParent) {
  const TreePath target{"Home", "Tea", "Green and white tea", below(kGreenTea).at(1)};
  for (const TreePath& path : {target, kAssam}) pick(path);
  const POINT to = item(target);
  Drag(program(), item(kAssam), to);
  EXPECT_EQ(below(kGreenTea).back(), "Assam Breakfast");
  EXPECT_THAT(below(kBlackTea), testing::Not(Contains("Assam Breakfast")));
  EXPECT_EQ(selectedItem(), "Green and white tea");
  EXPECT_EQ(CellsOf(list(), 0), below(kGreenTea));
}

TEST_F(Nodes, TreeScrollsWhileTheMouseRestsBelowItsEdge) {
  pick({"Home"});
  PressKey(program(), VK_MULTIPLY);  // opens all branches
  const auto top = [&] {
    return reinterpret_cast<HTREEITEM>(::SendMessageA(tree(), TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, 0));
  };
  const POINT from = item(kTea);
  const HTREEITEM before = top();
  const std::vector<std::string> children = below({"Home"});
  Drag(program(), from, {from.x, placeOf(tree()).bottom + 4}, [&] {
    EXPECT_TRUE(WaitFor([&] { return top() != before; }));
    TakePicture(window(), "dragging_below_tree");
  });
  EXPECT_EQ(below({"Home"}), children) << "There is nothing to drop it on.";
}

TEST_F(Nodes, ToolbarTellsWhatItsButtonsDo) {
  MoveMouse(program(), tool(Command::NewProduct));
  HWND tip = nullptr;
  ASSERT_TRUE(WaitFor([&] {
    tip = reinterpret_cast<HWND>(::SendMessageA(toolbar(), TB_GETTOOLTIPS, 0, 0));
    return tip != nullptr && ::IsWindowVisible(tip) != FALSE;
  }));
  EXPECT_EQ(TextOf(tip), "New Product");
  TakePicture(tip, "tool_tip");
}

TEST_F(Nodes, ColumnsCanBeReorderedAndCellsStayWithThem) {
  pick(kBlackTea);
  const std::string code = CellOf(list(), 0, 5);
  const std::string price = CellOf(list(), 0, 1);
  ASSERT_FALSE(code.empty());
  const auto heading = [&](int column) {
    RECT place{};
    ::SendMessageA(header(), HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
    ::MapWindowPoints(header(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  };
  POINT to = heading(3);
  to.x += 12;
  Drag(program(), heading(1), to);
  std::array<int, 16> order{};
  ::SendMessageA(list(), LVM_GETCOLUMNORDERARRAY, order.size(), reinterpret_cast<LPARAM>(order.data()));
  EXPECT_THAT(order, ElementsAre(0, 2, 3, 1, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
  EXPECT_EQ(CellOf(list(), 0, 1), price);
  EXPECT_EQ(CellOf(list(), 0, 5), code);
  EXPECT_THAT(CellsOf(list(), 0), Contains("Assam Breakfast"));
  TakePicture(window(), "columns_reordered");
}

TEST_F(Nodes, ControlsStayInsideTheWindowAndApartAtAnySize) {
  for (const SIZE size : {SIZE{1024, 740}, SIZE{800, 600}, SIZE{640, 480}, SIZE{100, 100}, SIZE{940, 640}}) {
    ::SetWindowPos(window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
    program().settle();
    const std::string name = std::to_string(size.cx) + "x" + std::to_string(size.cy);
    TakePicture(window(), "size_" + name);
    RECT inside{};
    ::GetClientRect(window(), &inside);
    ::MapWindowPoints(window(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
    const std::array controls{main_window::kTree,      main_window::kItemList, main_window::kTabs,
                              main_window::kStatusBar, main_window::kToolbar,  main_window::kPreview,
                              main_window::kProduct,   main_window::kCategory, main_window::kShelf,
                              main_window::kList,      main_window::kBuild};
    for (const ControlId first : controls) {
      const RECT place = placeOf(program().control(first));
      RECT common{};
      ::IntersectRect(&common, &place, &inside);
      EXPECT_TRUE(::EqualRect(&common, &place)) << first << " leaves the window at " << name;
      for (const ControlId second : controls) {
        const RECT other = placeOf(program().control(second));
        if (first >= second) continue;
        EXPECT_EQ(::IntersectRect(&common, &place, &other), FALSE) << first << " covers " << second << " at " << name;
      }
    }
    const RECT page = placeOf(program().page());
    RECT common{};
    const RECT tabsPlace = placeOf(tabs());
    ::IntersectRect(&common, &page, &tabsPlace);
    EXPECT_TRUE(::EqualRect(&common, &page)) << "The page leaves the tabs at " << name;
  }
}

TEST_F(Nodes, PreviewButtonsAskWhereThePreviewGoes) {
  pick(kBlackTea);
  for (const POINT button : {CentreOf(program().control(main_window::kPreview)),
                             CentreOf(program().field(inventory::kPreview)), tool(Command::PreviewPage)}) {
    Click(program(), button);
    const HWND dialog = WaitForBox("Build");
    ASSERT_NE(dialog, nullptr);
    AnswerBox(program(), dialog, IDCANCEL);
  }
  EXPECT_FALSE(canSave());
}

}  // namespace
}  // namespace varlo::test
