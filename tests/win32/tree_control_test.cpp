#include "win32/tree_control.h"

#include <array>
#include <string>

#include "tests/win32/main_window_fixture.h"

namespace varlo::test {
namespace {

class TreeControlTest : public MainWindowTest {
 protected:
  TreeWindow& tree() { return window->tree(); }
  TreeItem add(const char* label, TreeItem parent = kNoTreeItem, TreeItem behind = kLastItem) {
    return tree().insert({.parent = parent, .behind = behind, .label = label, .icon = 10, .data = &data});
  }
  LRESULT ask(UINT message, WPARAM wParam, HTREEITEM item) {
    return ::SendMessageA(treeHandle(), message, wParam, reinterpret_cast<LPARAM>(item));
  }
  HTREEITEM handleOf(LRESULT result) { return reinterpret_cast<HTREEITEM>(result); }
  std::string labelOf(HTREEITEM item) {
    std::array<char, 100> label{};
    TVITEMA shown{};
    shown.mask = TVIF_TEXT | TVIF_HANDLE | TVIF_IMAGE | TVIF_CHILDREN;
    shown.hItem = item;
    shown.pszText = label.data();
    shown.cchTextMax = static_cast<int>(label.size());
    ::SendMessageA(treeHandle(), TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&shown));
    icon = shown.iImage;
    button = shown.cChildren != 0;
    return label.data();
  }
  // The labels from the first item at the top on.
  std::string top() {
    std::string labels;
    for (auto each = handleOf(ask(TVM_GETNEXTITEM, TVGN_ROOT, nullptr)); each != nullptr;
         each = handleOf(ask(TVM_GETNEXTITEM, TVGN_NEXT, each))) {
      labels += labelOf(each) + " ";
    }
    return labels;
  }
  Point middleOf(HTREEITEM item) {
    RECT place{};
    TreeLabelPlace(treeHandle(), item, place);
    POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    ::ClientToScreen(treeHandle(), &middle);
    return {middle.x, middle.y};
  }

  int data = 0;
  int icon = 0;
  bool button = false;
};

TEST_F(TreeControlTest, InsertsFirstLastAndBehind) {
  const TreeItem b = add("b");
  add("d");
  add("a", kNoTreeItem, kFirstItem);
  add("c", kNoTreeItem, b);
  EXPECT_EQ(top(), "a b c d ");
  EXPECT_EQ(tree().data(b), &data);
}

TEST_F(TreeControlTest, RefusesAnItemBelowOneThatIsGone) {
  const TreeItem gone = add("a");
  tree().remove(gone);
  EXPECT_EQ(add("b", gone), kNoTreeItem);
  EXPECT_EQ(tree().data(gone), nullptr);
}

TEST_F(TreeControlTest, NeverGivesANumberTwice) {
  const TreeItem first = add("a");
  tree().remove(first);
  EXPECT_NE(add("b"), first);
}

TEST_F(TreeControlTest, RemovesAWholeBranch) {
  const TreeItem parent = add("a");
  const TreeItem child = add("b", parent);
  tree().remove(parent);
  EXPECT_EQ(tree().data(child), nullptr);
  EXPECT_EQ(top(), "");
}

TEST_F(TreeControlTest, ChangesLabelIconAndButton) {
  const TreeItem item = add("a");
  tree().setLabel(item, "Caf\xe9");
  tree().setIcon(item, 17);
  tree().setHasChildren(item, true);
  EXPECT_EQ(labelOf(handleOf(ask(TVM_GETNEXTITEM, TVGN_ROOT, nullptr))), "Caf\xe9");
  EXPECT_EQ(icon, 17);
  EXPECT_TRUE(button);
}

TEST_F(TreeControlTest, StaleNumbersDoNothing) {
  tree().setLabel(4711, "x");
  tree().setIcon(4711, 1);
  tree().setHasChildren(4711, true);
  tree().ensureVisible(4711);
  tree().collapse(4711);
  tree().remove(4711);
  EXPECT_EQ(tree().data(4711), nullptr);
}

TEST_F(TreeControlTest, TellsOfEverySelection) {
  const TreeItem a = add("a");
  const TreeItem b = add("b");
  tree().select(b);
  EXPECT_EQ(tree().selected(), b);
  EXPECT_EQ(logic.count("selected " + std::to_string(b)), 1);
  tree().remove(b);
  EXPECT_EQ(tree().selected(), a);
  EXPECT_EQ(logic.count("selected " + std::to_string(a)), 1);
  tree().select(kNoTreeItem);
  EXPECT_EQ(tree().selected(), kNoTreeItem);
  EXPECT_EQ(logic.count("selected 0"), 1);
}

TEST_F(TreeControlTest, RemovingAllTellsOfNoSelectionOnce) {
  tree().select(add("a"));
  add("b");
  settle();
  tree().removeAll();
  EXPECT_EQ(top(), "");
  EXPECT_EQ(logic.told, std::vector<std::string>{"selected 0"});
}

TEST_F(TreeControlTest, TellsOfBranchesThatTheUserOpensButNotOfItsOwn) {
  const TreeItem parent = add("a");
  tree().setHasChildren(parent, true);
  const TreeItem child = add("b", parent);
  settle();
  tree().select(child);
  tree().ensureVisible(child);
  tree().collapse(parent);
  EXPECT_EQ(logic.count("expanding " + std::to_string(parent)), 0);
  press(handle, treeHandle(), VK_HOME);
  press(handle, treeHandle(), VK_RIGHT);
  EXPECT_EQ(logic.count("expanding " + std::to_string(parent)), 1);
}

TEST_F(TreeControlTest, ConsumedKeysDoNotReachTheTree) {
  const TreeItem a = add("a");
  add("b");
  tree().select(a);
  settle();
  logic.consumesKeys = true;
  press(handle, treeHandle(), VK_DOWN);
  EXPECT_EQ(tree().selected(), a);
  EXPECT_EQ(logic.count("treeKey " + std::to_string(static_cast<int>(Key::Down))), 1);
  logic.consumesKeys = false;
  press(handle, treeHandle(), VK_DOWN);
  EXPECT_NE(tree().selected(), a);
}

TEST_F(TreeControlTest, KnowsTheKeysOfTheShell) {
  EXPECT_EQ(KeyOf(VK_DELETE), Key::Delete);
  EXPECT_EQ(KeyOf(VK_CONTROL), Key::Control);
  EXPECT_EQ(KeyOf(VK_UP), Key::Up);
  EXPECT_EQ(KeyOf(VK_ADD), Key::KeypadPlus);
  EXPECT_EQ(KeyOf(VK_SUBTRACT), Key::KeypadMinus);
  EXPECT_EQ(KeyOf('A'), Key::A);
  EXPECT_EQ(KeyOf('B'), Key::Other);
  EXPECT_EQ(KeyOf(VK_OEM_PLUS), Key::Other);
}

TEST_F(TreeControlTest, FindsTheItemUnderThePointAndTheEdges) {
  add("a");
  const TreeItem b = add("b");
  ::UpdateWindow(treeHandle());
  const Point middle =
      middleOf(handleOf(ask(TVM_GETNEXTITEM, TVGN_NEXT, handleOf(ask(TVM_GETNEXTITEM, TVGN_ROOT, nullptr)))));
  EXPECT_EQ(tree().itemAt(middle), b);
  EXPECT_EQ(tree().edgeAt(middle), Edge::Inside);
  RECT place{};
  ::GetWindowRect(treeHandle(), &place);
  EXPECT_EQ(tree().itemAt({place.left + 10, place.top - 5}), kNoTreeItem);
  EXPECT_EQ(tree().edgeAt({place.left + 10, place.top - 1}), Edge::Above);
  EXPECT_EQ(tree().edgeAt({place.left + 10, place.bottom}), Edge::Below);
}

TEST_F(TreeControlTest, HighlightsOneItemAtATime) {
  const TreeItem a = add("a");
  const TreeItem b = add("b");
  const HTREEITEM first = handleOf(ask(TVM_GETNEXTITEM, TVGN_ROOT, nullptr));
  const HTREEITEM second = handleOf(ask(TVM_GETNEXTITEM, TVGN_NEXT, first));
  const auto isHighlighted = [&](HTREEITEM item) {
    return (::SendMessageA(treeHandle(), TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_DROPHILITED) &
            TVIS_DROPHILITED) != 0;
  };
  tree().setDropHighlight(a);
  EXPECT_TRUE(isHighlighted(first));
  tree().setDropHighlight(b);
  EXPECT_FALSE(isHighlighted(first));
  EXPECT_TRUE(isHighlighted(second));
  tree().setDropHighlight(kNoTreeItem);
  EXPECT_FALSE(isHighlighted(second));
}

TEST_F(TreeControlTest, ScrollsByOneItem) {
  for (int i = 0; i < 100; ++i) add("a");
  const HTREEITEM first = handleOf(ask(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, nullptr));
  tree().scroll(Edge::Below);
  const HTREEITEM second = handleOf(ask(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, nullptr));
  EXPECT_EQ(second, handleOf(ask(TVM_GETNEXTITEM, TVGN_NEXT, first)));
  tree().scroll(Edge::Above);
  EXPECT_EQ(handleOf(ask(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, nullptr)), first);
}

TEST_F(TreeControlTest, PaintsNothingWhilePaintingIsHeldHoweverOften) {
  ::UpdateWindow(treeHandle());
  tree().holdPainting(true);
  tree().holdPainting(true);
  for (int i = 0; i < 100; ++i) add("a");
  EXPECT_EQ(::GetUpdateRect(treeHandle(), nullptr, FALSE), FALSE);
  tree().holdPainting(false);
  add("b");
  EXPECT_EQ(::GetUpdateRect(treeHandle(), nullptr, FALSE), FALSE);
  tree().holdPainting(false);
  EXPECT_NE(::GetUpdateRect(treeHandle(), nullptr, FALSE), FALSE);
  EXPECT_EQ(::SendMessageA(treeHandle(), TVM_GETCOUNT, 0, 0), 101);
}

}  // namespace
}  // namespace varlo::test
