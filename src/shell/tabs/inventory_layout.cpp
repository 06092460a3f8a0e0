#include "shell/tabs/inventory_layout.h"

#include <algorithm>
#include <array>

#include "platform/control_ids.h"

namespace varlo {
namespace {

using namespace control::inventory;

// All sizes are pixels of an ordinary screen.
constexpr int kMargin = 8;     // around the page
constexpr int kGap = 8;        // between cells of a row
constexpr int kSmallGap = 4;   // between rows, and around buttons
constexpr int kGroupGap = 4;   // above a group of rows, beyond kSmallGap
constexpr int kLine = 22;      // height of a field
constexpr int kTwoLines = 38;  // of one with two lines
constexpr int kLabelDrop = 4;  // of a label below the top of its field
constexpr int kLabelHeight = 16;
constexpr int kArrowButton = 28;
constexpr int kTextButton = 72;

// Room for the labels: in the first column, in the middle of a row, and of the custom fields.
constexpr int kFirst = 100;
constexpr int kMiddle = 80;
constexpr int kShort = 40;

// A field with its label on the left and its buttons on the right.
struct Cell {
  ControlId field = 0;
  int labelWidth = 0;
  std::array<ControlId, 2> buttons{};
  int buttonWidth = kArrowButton;
};

// The cells of a row share its width equally, so that the middle of the page is a column as well.
struct Row {
  std::array<Cell, 4> cells{};
  int height = kLine;
  int gapAbove = 0;
};

constexpr Cell customCell(ControlId field) { return {.field = field, .labelWidth = kShort}; }

// The pairs of label and value with the numbers `pair` and the next.
constexpr Row customRow(int pair, int gapAbove = 0) {
  return {.cells = {customCell(kLabel1 + pair), customCell(kValue1 + pair), customCell(kLabel1 + pair + 1),
                    customCell(kValue1 + pair + 1)},
          .gapAbove = gapAbove};
}

constexpr std::array<Row, 13> kRows{{
    {.cells = {{{.field = kTitle, .labelWidth = kFirst, .buttons = {kPreview}, .buttonWidth = kTextButton}}}},
    {.cells = {{{.field = kPageTitle, .labelWidth = kFirst}}}},
    {.cells = {{{.field = kFileName, .labelWidth = kFirst}, {.field = kProductCode, .labelWidth = kMiddle}}}},
    {.cells = {{{.field = kMetaKeywords, .labelWidth = kFirst, .buttons = {kKeywordManager}}}},
     .gapAbove = kGroupGap},
    {.cells = {{{.field = kMetaDescription, .labelWidth = kFirst}}}, .height = kTwoLines},
    {.cells = {{{.field = kImage, .labelWidth = kFirst, .buttons = {kChooseImage, kShowImage}}}},
     .gapAbove = kGroupGap},
    {.cells = {{{.field = kImageLink, .labelWidth = kFirst, .buttons = {kChooseImageLink, kShowImageLink}}}}},
    {.cells = {{{.field = kTemplate, .labelWidth = kFirst}}}, .gapAbove = kGroupGap},
    {.cells = {{{.field = kCost, .labelWidth = kFirst}, {.field = kWeight, .labelWidth = kMiddle}}}},
    {.cells = {{{.field = kFreight, .labelWidth = kFirst}, {.field = kTax, .labelWidth = kMiddle}}}},
    customRow(0, kGroupGap),
    customRow(2),
    customRow(4),
}};

class PageLayout {
 public:
  PageLayout(Size size, int scale) : size_(size), scale_(scale), top_(scaled(kMargin)) {}

  void add(const Row& row);
  void addDescription();
  // The second button of the page stands behind the first, unseen.
  void hideBuildButton();
  [[nodiscard]] std::vector<Placement> take() { return std::move(placements_); }

 private:
  [[nodiscard]] int scaled(int pixels) const { return (pixels * scale_ + 50) / 100; }
  void addCell(const Cell& cell, int left, int right, int height);
  void put(ControlId control, const Rectangle& place) {
    placements_.push_back({control, {place.left, place.top, std::max(place.width, 0), std::max(place.height, 0)}});
  }

  Size size_;
  int scale_;
  int top_;  // of the next row
  std::vector<Placement> placements_;
};

void PageLayout::add(const Row& row) {
  top_ += scaled(row.gapAbove);
  const int cells = static_cast<int>(
      std::count_if(row.cells.begin(), row.cells.end(), [](const Cell& cell) { return cell.field != 0; }));
  const int gap = scaled(kGap);
  const int share = size_.width - 2 * scaled(kMargin) + gap;  // of all cells, each with a gap behind it
  for (int i = 0; i < cells; ++i) {
    const int left = scaled(kMargin) + share * i / cells;
    const int right = scaled(kMargin) + share * (i + 1) / cells - gap;
    addCell(row.cells[static_cast<std::size_t>(i)], left, right, scaled(row.height));
  }
  top_ += scaled(row.height) + scaled(kSmallGap);
}

void PageLayout::addCell(const Cell& cell, int left, int right, int height) {
  const int labelWidth = scaled(cell.labelWidth);
  put(cell.field + kLabelOffset,
      {left, top_ + scaled(kLabelDrop), labelWidth - scaled(kSmallGap), scaled(kLabelHeight)});
  const int buttonWidth = scaled(cell.buttonWidth);
  const auto buttons = static_cast<int>(
      std::count_if(cell.buttons.begin(), cell.buttons.end(), [](ControlId button) { return button != 0; }));
  int buttonLeft = right - buttons * (buttonWidth + scaled(kSmallGap));
  put(cell.field, {left + labelWidth, top_, buttonLeft - left - labelWidth, height});
  for (int i = 0; i < buttons; ++i) {
    buttonLeft += scaled(kSmallGap);
    put(cell.buttons[static_cast<std::size_t>(i)], {buttonLeft, top_, buttonWidth, height});
    buttonLeft += buttonWidth;
  }
}

void PageLayout::addDescription() {
  top_ += scaled(kGroupGap);
  const int left = scaled(kMargin);
  const int width = size_.width - 2 * left;
  put(kDescription + kLabelOffset, {left, top_, width, scaled(kLabelHeight)});
  top_ += scaled(kLabelHeight) + scaled(kSmallGap) / 2;
  put(kDescription, {left, top_, width, size_.height - scaled(kMargin) - top_});
}

void PageLayout::hideBuildButton() {
  const auto preview = std::find_if(placements_.begin(), placements_.end(),
                                    [](const Placement& placement) { return placement.control == kPreview; });
  placements_.push_back({kBuild, preview->place, false});
}

}  // namespace

std::vector<Placement> layOutInventoryPage(Size size, int scale) {
  PageLayout layout(size, scale);
  for (const Row& row : kRows) layout.add(row);
  layout.addDescription();
  layout.hideBuildButton();
  return layout.take();
}

}  // namespace varlo
