#include "core/forms/lay_out.h"

#include <algorithm>

namespace varlo {
namespace {

// All sizes are pixels of an ordinary screen.
constexpr int kMargin = 8;     // around the window, and inside a frame
constexpr int kGap = 8;        // between the cells of a row
constexpr int kSmallGap = 4;   // between rows, and around small buttons
constexpr int kLine = 22;      // height of a field of one line
constexpr int kNextLine = 16;  // of each further line
constexpr int kTextLine = 16;
constexpr int kTickLine = 20;  // of check boxes and radio buttons
constexpr int kTextDrop = 3;   // of a label below the top of its field
constexpr int kFrameTop = 18;  // of a frame's rows below its top
constexpr int kFrameBottom = 8;
constexpr int kFootButton = 82;
constexpr int kFootHeight = 26;
constexpr int kFootGap = 10;         // above the buttons at the foot
constexpr int kNarrowestField = 56;  // a row breaks rather than make one narrower
constexpr int kSmallestFill = 70;    // height of what fills

bool holdsRows(const Cell& cell) { return cell.kind == Kind::Box || cell.kind == Kind::Group; }

// Whether a label of its own stands beside or above the field. What these kinds call a label is their own text.
bool hasLabel(const Cell& cell) {
  switch (cell.kind) {
    case Kind::Text:
    case Kind::Check:
    case Kind::Radio:
    case Kind::Button:
    case Kind::Group:
    case Kind::Box:
      return false;
    default:
      return !cell.label.empty() && cell.labelWidth != kLabelUnseen;
  }
}

int cellCount(const Row& row) {
  return static_cast<int>(
      std::count_if(std::begin(row.cells), std::end(row.cells), [](const Cell& c) { return c.kind != Kind::None; }));
}

bool fills(const Row& row);

bool fills(const Cell& cell) {
  if (holdsRows(cell))
    return std::any_of(cell.rows.begin(), cell.rows.end(), [](const Row& row) { return fills(row); });
  return cell.kind != Kind::None && cell.lines == kFill;
}

bool fills(const Row& row) {
  return std::any_of(std::begin(row.cells), std::end(row.cells), [](const Cell& cell) { return fills(cell); });
}

int buttonsWidth(const Cell& cell) {
  int width = 0;
  for (const SmallButton& button : cell.buttons) {
    if (button.id != 0 && button.width > 0) width += button.width + kSmallGap;
  }
  return width;
}

int narrowest(const Cell& cell);

int narrowest(const Row& row) {
  int width = 0;
  for (int i = 0; i < cellCount(row); ++i) width = std::max(width, narrowest(row.cells[i]));
  return width;
}

// The least width in which a cell can be used.
int narrowest(const Cell& cell) {
  if (cell.width > 0) return cell.width;
  int width = 0;
  for (const Row& row : cell.rows) width = std::max(width, narrowest(row));
  if (cell.kind == Kind::Group) width += 2 * kMargin;
  return std::max(width, std::max(cell.labelWidth, 0) + kNarrowestField + buttonsWidth(cell));
}

int fieldHeight(const Cell& cell) {
  if (cell.lines == kFill) return cell.kind == Kind::Space ? 0 : kSmallestFill;
  switch (cell.kind) {
    case Kind::Text:
      return kTextLine * cell.lines;
    case Kind::Check:
    case Kind::Radio:
      return kTickLine + kNextLine * (cell.lines - 1);
    case Kind::Rule:
      return 2;
    case Kind::Space:
      return kTextLine * cell.lines;
    case Kind::Icon:
      return 32;
    default:
      return kLine + kNextLine * (cell.lines - 1);
  }
}

class Layout {
 public:
  Layout(int scale, std::vector<PlacedControl>* controls) : scale_(scale), controls_(controls) {}

  // Lays rows out between two edges; `height` is what they shall fill, 0 for their own. Gives their height.
  int rows(std::span<const Row> rows, int left, int right, int top, int height);
  void foot(std::span<const FootButton> buttons, int right, int top);

  [[nodiscard]] int scaled(int pixels) const { return (pixels * scale_ + 50) / 100; }

 private:
  // Some of the cells of a row, which share its width.
  struct Line {
    std::span<const Cell> cells;
    int gapAbove = 0;
    int height = 0;
    bool fills = false;
  };
  std::vector<Line> breakRows(std::span<const Row> rows, int width);
  void measure(Line& line, int width);
  void put(const Line& line, int left, int right, int top);
  [[nodiscard]] std::vector<int> widths(std::span<const Cell> cells, int width) const;
  int cellHeight(const Cell& cell, int width);
  void putCell(const Cell& cell, int left, int right, int top, int height);
  int putLabel(const Cell& cell, int left, int right, int& top, int& height);
  void add(ControlId id, Kind kind, Part part, std::string_view text, Option options, const Cell* cell,
           const Rectangle& place);

  int scale_;
  std::vector<PlacedControl>* controls_;  // null: only measures
};

void Layout::add(ControlId id, Kind kind, Part part, std::string_view text, Option options, const Cell* cell,
                 const Rectangle& place) {
  if (controls_ == nullptr) return;
  controls_->push_back({id,
                        kind,
                        part,
                        text,
                        options,
                        cell,
                        {place.left, place.top, std::max(place.width, 0), std::max(place.height, 0)}});
}

// As many cells stand beside each other as have room; in a row that must break all parts but the last have as many.
std::vector<Layout::Line> Layout::breakRows(std::span<const Row> rows, int width) {
  std::vector<Line> lines;
  for (const Row& row : rows) {
    const std::span<const Cell> cells(row.cells, static_cast<std::size_t>(cellCount(row)));
    int needed = -kGap;
    bool fixed = false;
    for (const Cell& cell : cells) {
      needed += narrowest(cell) + kGap;
      fixed = fixed || cell.width > 0;
    }
    std::size_t together = std::max<std::size_t>(cells.size(), 1);
    if (!fixed) {
      const int each = std::max(narrowest(row), 1) + kGap;
      while (together > 1 && static_cast<int>(together) * scaled(each) - scaled(kGap) > width)
        together = (together + 1) / 2;
      if (scaled(needed) <= width) together = std::max<std::size_t>(cells.size(), 1);
    }
    for (std::size_t at = 0; at < cells.size(); at += together) {
      Line line{.cells = cells.subspan(at, std::min(together, cells.size() - at)),
                .gapAbove = at == 0 ? row.gapAbove : 0};
      measure(line, width);
      lines.push_back(line);
    }
  }
  return lines;
}

void Layout::measure(Line& line, int width) {
  const std::vector<int> each = widths(line.cells, width);
  for (std::size_t i = 0; i < line.cells.size(); ++i) {
    line.height = std::max(line.height, cellHeight(line.cells[i], each[i]));
    line.fills = line.fills || fills(line.cells[i]);
  }
}

std::vector<int> Layout::widths(std::span<const Cell> cells, int width) const {
  int left = width + scaled(kGap);
  int sharing = 0;
  for (const Cell& cell : cells) {
    left -= scaled(kGap) + scaled(cell.width);
    if (cell.width == 0) ++sharing;
  }
  std::vector<int> result;
  for (const Cell& cell : cells) {
    if (cell.width > 0) {
      result.push_back(scaled(cell.width));
    } else {
      const int share = left / sharing;
      result.push_back(share);
      left -= share;
      --sharing;
    }
  }
  return result;
}

int Layout::cellHeight(const Cell& cell, int width) {
  if (holdsRows(cell)) {
    const bool framed = cell.kind == Kind::Group;
    const int inner = width - (framed ? 2 * scaled(kMargin) : 0);
    Layout measuring(scale_, nullptr);
    return measuring.rows(cell.rows, 0, inner, 0, 0) + (framed ? scaled(kFrameTop) + scaled(kFrameBottom) : 0);
  }
  const bool above = hasLabel(cell) && cell.labelWidth == kLabelAbove;
  return scaled(fieldHeight(cell)) + (above ? scaled(kTextLine) + scaled(kSmallGap) / 2 : 0);
}

int Layout::rows(std::span<const Row> rows, int left, int right, int top, int height) {
  std::vector<Line> lines = breakRows(rows, right - left);
  int used = -scaled(kSmallGap);
  int filling = 0;
  for (const Line& line : lines) {
    used += scaled(line.gapAbove) + line.height + scaled(kSmallGap);
    if (line.fills) ++filling;
  }
  used = std::max(used, 0);
  int spare = std::max(height - used, 0);
  int y = top;
  for (Line& line : lines) {
    if (line.fills && filling > 0) {
      const int more = spare / filling;
      line.height += more;
      spare -= more;
      --filling;
    }
    y += scaled(line.gapAbove);
    put(line, left, right, y);
    y += line.height + scaled(kSmallGap);
  }
  return lines.empty() ? 0 : y - scaled(kSmallGap) - top;
}

void Layout::put(const Line& line, int left, int right, int top) {
  const std::vector<int> each = widths(line.cells, right - left);
  for (std::size_t i = 0; i < line.cells.size(); ++i) {
    putCell(line.cells[i], left, left + each[i], top, line.height);
    left += each[i] + scaled(kGap);
  }
}

// The label of a cell, if it has one; gives where the field begins, and takes what the label needs off the height.
int Layout::putLabel(const Cell& cell, int left, int right, int& top, int& height) {
  if (!hasLabel(cell)) return left;
  const Option options = Has(cell.options, Option::RightLabel) ? Option::RightLabel : Option::None;
  if (cell.labelWidth == kLabelAbove) {
    add(0, Kind::Text, Part::Label, cell.label, options, &cell, {left, top, right - left, scaled(kTextLine)});
    const int taken = scaled(kTextLine) + scaled(kSmallGap) / 2;
    top += taken;
    height -= taken;
    return left;
  }
  const int width = scaled(cell.labelWidth);
  add(0, Kind::Text, Part::Label, cell.label, options, &cell,
      {left, top + scaled(kTextDrop), width - scaled(kSmallGap), scaled(kTextLine)});
  return left + width;
}

void Layout::putCell(const Cell& cell, int left, int right, int top, int height) {
  if (cell.kind == Kind::Space) return;
  if (holdsRows(cell)) {
    const bool framed = cell.kind == Kind::Group;
    if (framed)
      add(cell.id, cell.kind, Part::Field, cell.label, cell.options, &cell, {left, top, right - left, height});
    const int margin = framed ? scaled(kMargin) : 0;
    const int above = framed ? scaled(kFrameTop) : 0;
    const int below = framed ? scaled(kFrameBottom) : 0;
    rows(cell.rows, left + margin, right - margin, top + above, height - above - below);
    return;
  }
  const bool besideField = height >= scaled(kLine) && height < 2 * scaled(kLine);
  const int fieldLeft = putLabel(cell, left, right, top, height);
  if (!fills(cell)) height = scaled(fieldHeight(cell));
  int buttonLeft = right - scaled(buttonsWidth(cell));
  const int drop = cell.kind == Kind::Text && cell.lines == 1 && besideField ? scaled(kTextDrop) : 0;
  add(cell.id, cell.kind, Part::Field, cell.label, cell.options, &cell,
      {fieldLeft, top + drop, buttonLeft - fieldLeft, height});
  for (const SmallButton& button : cell.buttons) {
    if (button.id == 0) continue;
    if (button.width > 0) buttonLeft += scaled(kSmallGap);
    add(button.id, button.kind, Part::SmallButton, button.label, button.options, &cell,
        {buttonLeft, top, scaled(button.width), scaled(kLine)});
    buttonLeft += scaled(button.width);
  }
}

void Layout::foot(std::span<const FootButton> buttons, int right, int top) {
  const int step = scaled(kFootButton) + scaled(kGap);
  int left = right + scaled(kGap) - static_cast<int>(buttons.size()) * step;
  for (const FootButton& button : buttons) {
    add(button.id, Kind::Button, Part::Field, button.label, button.options, nullptr,
        {left, top, scaled(kFootButton), scaled(kFootHeight)});
    left += step;
  }
}

int footHeight(const DialogShape& shape, const Layout& layout) {
  return shape.foot.empty() ? 0 : layout.scaled(kFootGap) + layout.scaled(kFootHeight);
}

}  // namespace

std::vector<PlacedControl> LayOut(const DialogShape& shape, Size size, int scale) {
  std::vector<PlacedControl> controls;
  Layout layout(scale, &controls);
  const int margin = layout.scaled(kMargin);
  const int foot = footHeight(shape, layout);
  layout.rows(shape.rows, margin, size.width - margin, margin, size.height - 2 * margin - foot);
  const int height = std::max(size.height, LaidOutHeight(shape, size.width, scale));
  layout.foot(shape.foot, size.width - margin, height - margin - layout.scaled(kFootHeight));
  return controls;
}

int LaidOutHeight(const DialogShape& shape, int width, int scale) {
  Layout layout(scale, nullptr);
  const int margin = layout.scaled(kMargin);
  return layout.rows(shape.rows, margin, width - margin, 0, 0) + 2 * margin + footHeight(shape, layout);
}

}  // namespace varlo
