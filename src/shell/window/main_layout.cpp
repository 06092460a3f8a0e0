#include "shell/window/main_layout.h"

#include <algorithm>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "platform/main_window.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

namespace ids = main_window;

// In pixels of an ordinary screen.
constexpr int kToolbarHeight = 32;
constexpr int kToolbarMargin = 28;  // right of it, to the left width
constexpr int kLeftMargin = 6;
constexpr int kListMargin = 30;  // the list's width against the left width
constexpr int kListGap = 2;      // below the list
constexpr int kTreeTop = 5;      // below the toolbar
constexpr int kTreeGap = 10;     // above the list
constexpr int kTabsOverlap = 15;
constexpr int kPageMargin = 4;
constexpr int kButtonWidth = 64;
constexpr int kButtonHeight = 23;
constexpr int kButtonsGap = 4;  // between tree and buttons
constexpr int kGroupGap = 10;   // below Preview, above Build

constexpr int kLeftWidth = 384;  // left edge of the tabs, where the window is wide enough
constexpr Size kInside{930, 611};

constexpr Cell button(ControlId id, std::string_view label) {
  return Cell{.id = id, .kind = Kind::Button, .label = label};
}
constexpr Cell control(ControlId id, Kind kind, std::string_view name = {}) {
  return Cell{.id = id, .kind = kind, .label = name, .labelWidth = kLabelUnseen, .options = Option::ManyRows};
}

constexpr Row kRows[] = {
    {{control(ids::kTree, Kind::Tree, "Store tree")}},
    {{button(ids::kPreview, "Preview")}},
    {{button(ids::kProduct, "Product")}},
    {{button(ids::kCategory, "Category")}},
    {{button(ids::kShelf, "Shelf")}},
    {{button(ids::kList, "List")}},
    {{button(ids::kBuild, "Build")}},
    {{control(ids::kItemList, Kind::ItemList, "Items")}},
    {{control(ids::kTabs, Kind::Tabs)}},
    {{control(ids::kStatusBar, Kind::StatusBar)}},
};

struct ColumnButton {
  ControlId control = 0;
  int gapAbove = 0;
};
constexpr ColumnButton kButtonColumn[] = {{ids::kPreview, 0},  {ids::kProduct, kGroupGap},
                                          {ids::kCategory, 0}, {ids::kShelf, 0},
                                          {ids::kList, 0},     {ids::kBuild, kGroupGap}};

class Layout {
 public:
  explicit Layout(const LayoutFacts& facts) : facts_(facts), client_(facts.client), left_(facts.leftWidth) {
    if (left_ > client_.width - left_) left_ = client_.width / 2;
  }

  MainLayout make() {
    placeToolbar();
    placeList();
    placeTree();
    placeButtons();
    placeTabs();
    place(ids::kStatusBar, {0, client_.height - facts_.rowHeight, client_.width, facts_.rowHeight});
    return std::move(layout_);
  }

 private:
  [[nodiscard]] int scaled(int pixels) const { return pixels * facts_.scale / 100; }
  [[nodiscard]] int toolbarHeight() const { return facts_.toolbarShown ? scaled(kToolbarHeight) : 0; }
  [[nodiscard]] int listTop() const { return client_.height * 2 / 3 - facts_.rowHeight; }
  [[nodiscard]] int listHeight() const { return client_.height / 3 - scaled(kListGap); }
  [[nodiscard]] int listWidth() const { return left_ - scaled(kListMargin); }
  [[nodiscard]] int treeTop() const { return toolbarHeight() + scaled(kTreeTop); }

  // In a window that is too small a control has no size rather than a negative one.
  static Rectangle sized(Rectangle place) {
    place.width = std::max(place.width, 0);
    place.height = std::max(place.height, 0);
    return place;
  }
  void place(ControlId control, const Rectangle& place, bool shown = true) {
    layout_.controls.push_back({control, sized(place), shown});
  }

  void placeToolbar() {
    place(ids::kToolbar, {0, 0, left_ - scaled(kToolbarMargin), toolbarHeight()}, facts_.toolbarShown);
  }
  void placeList() { place(ids::kItemList, {scaled(kLeftMargin), listTop(), listWidth(), listHeight()}); }
  void placeTree() {
    const int buttons = facts_.buttonsShown ? scaled(kButtonsGap) + scaled(kButtonWidth) : 0;
    const int height = listTop() - scaled(kTreeGap) - treeTop();
    place(ids::kTree, {scaled(kLeftMargin), treeTop(), listWidth() - buttons, height});
  }
  void placeButtons() {
    const int width = scaled(kButtonWidth);
    const int x = scaled(kLeftMargin) + listWidth() - width;
    int y = treeTop();
    for (const ColumnButton& button : kButtonColumn) {
      y += scaled(button.gapAbove);
      place(button.control, {x, y, width, scaled(kButtonHeight)}, facts_.buttonsShown);
      y += scaled(kButtonHeight);
    }
  }
  // The page leaves the row of the labels free. Both end with the list, above the status bar.
  void placeTabs() {
    const int x = left_ - scaled(kTabsOverlap);
    const int height = listTop() + listHeight();
    place(ids::kTabs, {x, 0, client_.width - x, height});
    const int margin = scaled(kPageMargin);
    const int labels = facts_.rowHeight + margin;
    layout_.page = sized({x + margin, labels, client_.width - x - 2 * margin, height - labels - margin});
  }

  const LayoutFacts& facts_;
  Size client_;
  int left_ = 0;
  MainLayout layout_;
};

}  // namespace

const DialogShape& MainWindowShape() {
  static constexpr DialogShape kShape{.id = ids::kWindow,
                                      .title = "Varlo PRO",
                                      .form = Form::Main,
                                      .size = kInside,
                                      .resizable = true,
                                      .rows = kRows};
  return kShape;
}

MainLayout layOutMainWindow(const LayoutFacts& facts) { return Layout(facts).make(); }

LayoutFacts layoutFactsOf(const Shell& shell) {
  if (shell.mainWindow == nullptr) return {};
  const MainWindow& window = *shell.mainWindow;
  const std::int32_t flags = shell.program.config.viewFlags;
  return {.client = window.clientSize(),
          .rowHeight = window.rowHeight(),
          .leftWidth = window.scaled(kLeftWidth),
          .scale = window.scaled(100),
          .toolbarShown = (flags & kViewToolbar) != 0,
          .buttonsShown = (flags & kViewButtons) != 0};
}

void placeTabPage(Shell& shell) {
  if (shell.tabPage != nullptr) shell.mainWindow->placePage(layOutMainWindow(layoutFactsOf(shell)).page);
}

void resizeMainWindow(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  if (shell.tabPage == nullptr) {
    ErrorBox(shell.program, message::kResizeError);
    return;
  }
  MainWindow& window = *shell.mainWindow;
  const LayoutFacts facts = layoutFactsOf(shell);
  const MainLayout layout = layOutMainWindow(facts);
  window.controls().place(layout.controls);
  window.placePage(layout.page);
  const int parts[] = {window.scaled(30), facts.client.width - window.scaled(100), -1};
  window.setStatusParts(parts);
  window.redraw();
}

}  // namespace varlo
