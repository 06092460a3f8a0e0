#include "shell/window/main_layout.h"

#include <algorithm>
#include <ostream>

#include <gtest/gtest.h>

#include "platform/main_window.h"
#include "shell/window/main_window_life.h"
#include "tests/support/page_stand_in.h"
#include "tests/support/test_shell.h"

namespace varlo {

// So that a failed comparison can be read.
void PrintTo(const Rectangle& place, std::ostream* out) {
  *out << place.left << "," << place.top << " " << place.width << "x" << place.height;
}

namespace test {
namespace {

namespace ids = main_window;

const LayoutFacts kWindow{.client = {1000, 690}, .rowHeight = 20, .leftWidth = 350};

const Placement& placementOf(const MainLayout& layout, ControlId control) {
  static const Placement none;
  const auto found = std::ranges::find(layout.controls, control, &Placement::control);
  EXPECT_NE(found, layout.controls.end()) << control;
  return found == layout.controls.end() ? none : *found;
}
Rectangle placeOf(const MainLayout& layout, ControlId control) { return placementOf(layout, control).place; }
Rectangle placeOf(const LayoutFacts& facts, ControlId control) { return placeOf(layOutMainWindow(facts), control); }

int right(const Rectangle& place) { return place.left + place.width; }
int bottom(const Rectangle& place) { return place.top + place.height; }

TEST(MainLayout, TheToolbarTakesTheTop32PixelsAndTheLeftWidthLess28) {
  EXPECT_EQ(placeOf(kWindow, ids::kToolbar), (Rectangle{0, 0, 322, 32}));
}

TEST(MainLayout, TheItemListTakesTheLowerThird) {
  EXPECT_EQ(placeOf(kWindow, ids::kItemList), (Rectangle{6, 440, 320, 228}));
}

TEST(MainLayout, TheTreeLiesBetweenToolbarAndItemListLeftOfTheButtons) {
  const Rectangle tree = placeOf(kWindow, ids::kTree);
  EXPECT_EQ(tree.left, 6);
  EXPECT_EQ(tree.top, 37);
  EXPECT_EQ(bottom(tree), 430);
  EXPECT_LT(right(tree), placeOf(kWindow, ids::kPreview).left);
}

TEST(MainLayout, WithoutButtonsTheTreeWidensOverThem) {
  LayoutFacts facts = kWindow;
  facts.buttonsShown = false;
  EXPECT_EQ(placeOf(facts, ids::kTree), (Rectangle{6, 37, 320, 393}));
  for (ControlId button = ids::kPreview; button <= ids::kBuild; ++button) {
    EXPECT_FALSE(placementOf(layOutMainWindow(facts), button).shown);
    EXPECT_TRUE(placementOf(layOutMainWindow(kWindow), button).shown);
  }
}

TEST(MainLayout, WithoutAToolbarTheTreeReachesUp) {
  LayoutFacts facts = kWindow;
  facts.toolbarShown = false;
  EXPECT_FALSE(placementOf(layOutMainWindow(facts), ids::kToolbar).shown);
  EXPECT_EQ(placeOf(facts, ids::kToolbar).height, 0);
  EXPECT_EQ(placeOf(facts, ids::kTree).top, 5);
  EXPECT_EQ(bottom(placeOf(facts, ids::kTree)), 430);
}

TEST(MainLayout, TheButtonsStandInAColumnWithGapsOf10AroundThoseThatMakeNodes) {
  const MainLayout layout = layOutMainWindow(kWindow);
  int y = placeOf(layout, ids::kTree).top;
  const std::pair<ControlId, int> column[] = {{ids::kPreview, 0}, {ids::kProduct, 10}, {ids::kCategory, 0},
                                              {ids::kShelf, 0},   {ids::kList, 0},     {ids::kBuild, 10}};
  for (const auto& [button, gap] : column) {
    const Rectangle place = placeOf(layout, button);
    EXPECT_EQ(place.top, y + gap) << button;
    EXPECT_EQ(right(place), right(placeOf(layout, ids::kItemList))) << button;
    y = bottom(place);
  }
}

TEST(MainLayout, TheTabControlTakesTheRightSideAndOverlapsTheLeftBy15) {
  const Rectangle tabs = placeOf(kWindow, ids::kTabs);
  EXPECT_EQ(tabs.left, 335);
  EXPECT_EQ(tabs.top, 0);
  EXPECT_EQ(right(tabs), 1000);
}

TEST(MainLayout, ThePageLiesInTheTabControlBelowItsLabels) {
  const MainLayout layout = layOutMainWindow(kWindow);
  const Rectangle tabs = placeOf(layout, ids::kTabs);
  EXPECT_GT(layout.page.left, tabs.left);
  EXPECT_GE(layout.page.top, tabs.top + kWindow.rowHeight);
  EXPECT_LT(right(layout.page), right(tabs));
  EXPECT_LT(bottom(layout.page), bottom(tabs));
}

TEST(MainLayout, NothingLiesOnTheStatusBar) {
  const MainLayout layout = layOutMainWindow(kWindow);
  const Rectangle bar = placeOf(layout, ids::kStatusBar);
  EXPECT_EQ(bar, (Rectangle{0, 670, 1000, 20}));
  for (const Placement& placement : layout.controls) {
    const bool isBar = placement.control == ids::kStatusBar;
    EXPECT_TRUE(isBar || bottom(placement.place) <= bar.top) << placement.control;
  }
}

TEST(MainLayout, ALeftSideWiderThanTheRightIsHalfOfTheWindow) {
  LayoutFacts facts = kWindow;
  facts.client.width = 699;
  EXPECT_EQ(placeOf(facts, ids::kTabs).left, 349 - 15);
  facts.client.width = 700;
  EXPECT_EQ(placeOf(facts, ids::kTabs).left, 350 - 15);
}

TEST(MainLayout, OnAFinerScreenEverythingScales) {
  const LayoutFacts facts{.client = {2000, 1380}, .rowHeight = 40, .leftWidth = 700, .scale = 200};
  const MainLayout large = layOutMainWindow(facts);
  const MainLayout ordinary = layOutMainWindow(kWindow);
  for (const Placement& placement : ordinary.controls) {
    const Rectangle& place = placement.place;
    EXPECT_EQ(placeOf(large, placement.control),
              (Rectangle{place.left * 2, place.top * 2, place.width * 2, place.height * 2}))
        << placement.control;
  }
}

TEST(MainLayout, NoSizeIsNegativeInATinyWindow) {
  for (int size = 0; size < 200; ++size) {
    LayoutFacts facts = kWindow;
    facts.client = {size, size};
    const MainLayout layout = layOutMainWindow(facts);
    for (const Placement& placement : layout.controls) {
      EXPECT_GE(placement.place.width, 0);
      EXPECT_GE(placement.place.height, 0);
    }
    EXPECT_GE(layout.page.width, 0);
    EXPECT_GE(layout.page.height, 0);
  }
}

class Resize : public testing::Test {
 protected:
  TestShell t;
  PageStandIn page;

  void SetUp() override {
    t.attach();
    page.openIn(t.shell);
  }
};

TEST_F(Resize, LaysOutAndPaintsAnew) {
  t.logic.resized();
  const MainLayout layout = layOutMainWindow(layoutFactsOf(t.shell));
  EXPECT_EQ(t.window.frame().placements().size(), layout.controls.size());
  EXPECT_EQ(t.window.frame().placements().at(ids::kTree).place, placeOf(layout, ids::kTree));
  EXPECT_EQ(t.window.pagePlace(), layout.page);
  EXPECT_EQ(t.window.redraws(), 1);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(Resize, GivesTheStatusBarItsParts) {
  t.logic.resized();
  EXPECT_EQ(t.window.statusParts(), (std::vector<int>{30, 900, -1}));
}

TEST_F(Resize, FollowsTheViewFlags) {
  t.config().viewFlags = kViewButtons;
  t.logic.resized();
  EXPECT_FALSE(t.window.frame().isShown(ids::kToolbar));
  EXPECT_TRUE(t.window.frame().isShown(ids::kBuild));
  t.config().viewFlags = kViewToolbar;
  t.logic.resized();
  EXPECT_TRUE(t.window.frame().isShown(ids::kToolbar));
  EXPECT_FALSE(t.window.frame().isShown(ids::kBuild));
}

TEST_F(Resize, WithoutAPageFailsAndIsTold) {
  t.shell.tabPage = nullptr;
  t.logic.resized();
  EXPECT_EQ(t.screen.boxes, (std::vector<ShownBox>{{"Window resizing failed!", "Error"}}));
  EXPECT_TRUE(t.window.frame().placements().empty());
}

TEST_F(Resize, WithoutAWindowDoesNothing) {
  t.shell.mainWindow = nullptr;
  t.logic.resized();
  EXPECT_TRUE(t.screen.boxes.empty());
}

}  // namespace
}  // namespace test
}  // namespace varlo
