#include "tests/support/fake_window.h"

#include <stdexcept>

namespace varlo::test {
namespace {

constexpr std::pair<Kind, const char*> kKindNames[] = {
    {Kind::Text, "text"},          {Kind::Edit, "edit"},     {Kind::Lines, "lines"},
    {Kind::RichEdit, "rich edit"}, {Kind::Combo, "combo"},   {Kind::DropList, "choice"},
    {Kind::Check, "check"},        {Kind::Radio, "radio"},   {Kind::Button, "button"},
    {Kind::ListBox, "rows"},       {Kind::List, "list"},     {Kind::Progress, "progress"},
    {Kind::Picture, "picture"},    {Kind::Swatch, "swatch"}, {Kind::StatusBar, "status"},
    {Kind::Group, "group"},        {Kind::Rule, "rule"},     {Kind::Icon, "icon"},
};

const char* nameOf(Kind kind) {
  const auto* found = std::find_if(std::begin(kKindNames), std::end(kKindNames),
                                   [kind](const auto& each) { return each.first == kind; });
  return found == std::end(kKindNames) ? "control" : found->second;
}

bool isTabStop(Kind kind) {
  constexpr Kind kOthers[] = {Kind::Text,      Kind::Group, Kind::Progress, Kind::Picture,
                              Kind::StatusBar, Kind::Rule,  Kind::Icon};
  return std::find(std::begin(kOthers), std::end(kOthers), kind) == std::end(kOthers);
}

bool isTyped(Kind kind) {
  return kind == Kind::Edit || kind == Kind::Lines || kind == Kind::RichEdit || kind == Kind::Combo;
}

constexpr Kind kPlainRows[] = {Kind::Combo, Kind::DropList, Kind::ListBox};

struct NoLogic : DialogLogic {
  explicit NoLogic(const DialogShape& theShape) : itsShape(theShape) {}
  const DialogShape& itsShape;
  [[nodiscard]] const DialogShape& shape() const override { return itsShape; }
  void opened(Dialog& /*dialog*/) override {}
  void notified(Dialog& /*dialog*/, const ControlEvent& /*event*/) override {}
};

}  // namespace

FakeWindow::FakeWindow(DialogLogic& logic)
    : FakeWindow(std::shared_ptr<DialogLogic>(std::shared_ptr<void>(), &logic)) {}
FakeWindow::FakeWindow(std::shared_ptr<DialogLogic> logic) : logic_(std::move(logic)) { make(); }
FakeWindow::FakeWindow(const DialogShape& shape) : FakeWindow(std::make_shared<NoLogic>(shape)) {}
FakeWindow::~FakeWindow() = default;

// What the real controls have from the start: texts of buttons and the like, and nothing in the fields.
void FakeWindow::make() {
  shape_ = &logic_->shape();
  title_ = shape_->title;
  controls_ = LayOut(*shape_, size_, 100);
  for (const PlacedControl& control : controls_) {
    if (control.id == 0) continue;
    const bool isField = isTyped(control.kind) || control.kind == Kind::DropList;
    texts_[control.id] = isField ? std::string() : std::string(control.text);
    shown_[control.id] = !Has(control.options, Option::Hidden);
  }
}

void FakeWindow::reshape() {
  for (auto* each : {&enabled_, &shown_, &checked_, &caretAtEnd_}) each->clear();
  texts_.clear();
  rows_.clear();
  columns_.clear();
  headings_.clear();
  selections_.clear();
  focused_ = 0;
  make();
}

const PlacedControl* FakeWindow::find(ControlId control) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [control](const PlacedControl& each) {
    return control != 0 && each.id == control;
  });
  return found == controls_.end() ? nullptr : &*found;
}

void FakeWindow::mustBe(ControlId control, std::initializer_list<Kind> kinds) const {
  if (shape_->rows.empty() && shape_->foot.empty()) return;  // a page without a shape yet
  const PlacedControl* found = find(control);
  if (found == nullptr)
    throw std::logic_error("no control " + std::to_string(control) + " in \"" + std::string(shape_->title) + "\"");
  if (kinds.size() > 0 && std::find(kinds.begin(), kinds.end(), found->kind) == kinds.end()) {
    throw std::logic_error("control " + std::to_string(control) + " is of another kind: " + nameOf(found->kind));
  }
}

void FakeWindow::open() {
  logic_->opened(*this);
  if (open_) logic_->resized(*this);
}

void FakeWindow::tell(ControlEvent event) {
  const std::shared_ptr<DialogLogic> kept = logic_;
  kept->notified(*this, event);
}

void FakeWindow::type(ControlId control, std::string_view text) {
  if (canUse(control)) setText(control, text);
}

void FakeWindow::press(ControlId button) {
  mustBe(button, {Kind::Button, Kind::Swatch, Kind::Check, Kind::Radio});
  if (!canUse(button)) return;
  const PlacedControl* control = find(button);
  if (control != nullptr && control->kind == Kind::Check) checked_[button] = !checked_[button];
  if (control != nullptr && control->kind == Kind::Radio) check(button, true);
  tell(button, Notice::Clicked);
}

void FakeWindow::close() {
  const std::shared_ptr<DialogLogic> kept = logic_;
  kept->closeRequested(*this);
}

ControlId FakeWindow::defaultButton() const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [](const PlacedControl& each) { return Has(each.options, Option::Default); });
  return found == controls_.end() ? 0 : found->id;
}

void FakeWindow::pressReturn() {
  if (defaultButton() != 0) press(defaultButton());
}

void FakeWindow::resize(Size size) {
  size_ = size;
  controls_ = LayOut(*shape_, size_, 100);
  logic_->resized(*this);
}

void FakeWindow::changeSelection(ControlId list, std::vector<int> rows, int row, bool byKey) {
  if (rows_[list].selected == rows) return;
  rows_[list].selected = std::move(rows);
  tell({.control = list, .notice = Notice::SelectionChanged, .row = row, .byKey = byKey});
}

void FakeWindow::pickRow(ControlId list, int row) {
  mustBe(list, {Kind::List, Kind::ListBox});
  changeSelection(list, row == kNoRow ? std::vector<int>() : std::vector<int>{row}, row, false);
}

void FakeWindow::pickRows(ControlId list, const std::vector<int>& rows) {
  mustBe(list, {Kind::List});
  changeSelection(list, rows, rows.empty() ? kNoRow : rows.back(), false);
}

void FakeWindow::goToRow(ControlId list, int row) {
  mustBe(list, {Kind::List});
  tell({.control = list, .notice = Notice::KeyPressed, .row = selectedRow(list), .key = Key::Down});
  changeSelection(list, {row}, row, true);
}

void FakeWindow::clickRow(ControlId list, int row, int column) {
  pickRow(list, row);
  tell({.control = list, .notice = Notice::Clicked, .row = row, .column = column});
}

void FakeWindow::doubleClickRow(ControlId list, int row, int column) {
  clickRow(list, row, column);
  tell({.control = list, .notice = Notice::DoubleClicked, .row = row, .column = column});
}

// A right click on a selected row keeps the selection.
void FakeWindow::rightClickRow(ControlId list, int row, int column) {
  if (!isRowSelected(list, row)) pickRow(list, row);
  tell({.control = list, .notice = Notice::RightClicked, .row = row, .column = column, .point = {1, 1}});
}

void FakeWindow::clickHeading(ControlId list, int column) {
  tell({.control = list, .notice = Notice::HeadingClicked, .column = column, .point = {1, 1}});
}

void FakeWindow::pressKey(ControlId list, Key key, bool withControl) {
  tell({.control = list,
        .notice = Notice::KeyPressed,
        .row = selectedRow(list),
        .key = key,
        .withControl = withControl});
}

void FakeWindow::pickComboRow(ControlId combo, std::size_t row) {
  mustBe(combo, {Kind::Combo, Kind::DropList});
  if (find(combo) != nullptr && find(combo)->kind == Kind::DropList) texts_[combo] = rows_[combo].texts.at(row);
  rows_[combo].selected = {static_cast<int>(row)};
  tell({.control = combo, .notice = Notice::SelectionChanged, .row = static_cast<int>(row)});
  texts_[combo] = rows_[combo].texts.at(row);
}

void FakeWindow::deliverPosts() {
  while (!posts_.empty()) {
    const ControlId control = posts_.front();
    posts_.pop_front();
    tell(control, Notice::Posted);
  }
}

bool FakeWindow::isEnabled(ControlId control) const {
  const auto found = enabled_.find(control);
  return found == enabled_.end() || found->second;
}

bool FakeWindow::isShown(ControlId control) const {
  const auto placed = placements_.find(control);
  if (placed != placements_.end()) return placed->second.shown;
  const auto found = shown_.find(control);
  return found == shown_.end() || found->second;
}

std::vector<std::string> FakeWindow::headings(ControlId list) { return headings_[list]; }

std::vector<int> FakeWindow::displayOrder(ControlId list) {
  if (!rows_[list].order.empty()) return rows_[list].order;
  std::vector<int> order(static_cast<std::size_t>(rows_[list].count));
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  return order;
}

std::vector<int> FakeWindow::selectedRows(ControlId list) {
  std::vector<int> rows = rows_[list].selected;
  std::sort(rows.begin(), rows.end());
  return rows;
}

bool FakeWindow::textSelected(ControlId control) {
  return !texts_[control].empty() &&
         selections_[control] == std::pair<std::size_t, std::size_t>(0, texts_[control].size());
}

std::vector<ControlId> FakeWindow::tabOrder() const {
  std::vector<ControlId> order;
  for (const PlacedControl& control : controls_) {
    if (control.id != 0 && isTabStop(control.kind) && canUse(control.id)) order.push_back(control.id);
  }
  return order;
}

std::string FakeWindow::stateOf(const PlacedControl& control) {
  std::string state;
  const bool isList = control.kind == Kind::List;
  const bool hasRows =
      isList || std::find(std::begin(kPlainRows), std::end(kPlainRows), control.kind) != std::end(kPlainRows);
  if (isTyped(control.kind) || control.kind == Kind::DropList) state += " \"" + texts_[control.id] + "\"";
  if (control.kind == Kind::Check || control.kind == Kind::Radio) state += checked_[control.id] ? " [x]" : " [ ]";
  if (control.kind == Kind::Picture) state += " \"" + pictures_[control.id] + "\"";
  if (hasRows) {
    const Rows& rows = rows_[control.id];
    state += " " + std::to_string(isList ? rows.count : static_cast<int>(rows.texts.size())) + " rows";
  }
  if (Has(control.options, Option::Default)) state += " default";
  if (!isEnabled(control.id)) state += " disabled";
  if (!isShown(control.id)) state += " hidden";
  if (focused_ == control.id) state += " focused";
  return state;
}

std::string FakeWindow::describe() {
  std::string all = "[" + title_ + "]\n";
  std::string label;
  for (const PlacedControl& control : controls_) {
    if (control.part == Part::Label) {
      label = std::string(control.text) + " ";
      continue;
    }
    const bool ownText = !isTyped(control.kind) && control.id != 0;
    const std::string shown = ownText ? texts_[control.id] : std::string(control.id == 0 ? control.text : "");
    all += label + nameOf(control.kind) + (shown.empty() ? "" : " '" + shown + "'");
    if (control.id != 0) all += stateOf(control);
    all += "\n";
    label.clear();
  }
  return all;
}

std::string FakeWindow::text(ControlId control) {
  mustExist(control);
  return texts_[control];
}

void FakeWindow::setText(ControlId control, std::string_view text) {
  mustExist(control);
  texts_[control] = text;
  selections_[control] = {};
  caretAtEnd_[control] = false;
  const PlacedControl* found = find(control);
  if (found == nullptr || isTyped(found->kind)) tell(control, Notice::Changed);
}

void FakeWindow::limitText(ControlId control, int size) {
  mustBe(control, {Kind::Edit, Kind::Lines, Kind::RichEdit, Kind::Combo});
  limits_[control] = size;
}

void FakeWindow::enable(ControlId control, bool on) {
  mustExist(control);
  enabled_[control] = on;
}

void FakeWindow::show(ControlId control, bool on) {
  mustExist(control);
  shown_[control] = on;
}

bool FakeWindow::isChecked(ControlId control) {
  mustBe(control, {Kind::Check, Kind::Radio});
  return checked_[control];
}

// The radio buttons of a choice stand in one run.
void FakeWindow::check(ControlId control, bool on) {
  mustBe(control, {Kind::Check, Kind::Radio});
  const PlacedControl* found = find(control);
  if (on && found != nullptr && found->kind == Kind::Radio) {
    const auto at = static_cast<std::size_t>(found - controls_.data());
    for (std::size_t i = at; i < controls_.size() && controls_[i].kind == Kind::Radio; ++i)
      checked_[controls_[i].id] = false;
    for (std::size_t i = at; i-- > 0 && controls_[i].kind == Kind::Radio;) checked_[controls_[i].id] = false;
  }
  checked_[control] = on;
}

void FakeWindow::focus(ControlId control) {
  mustExist(control);
  if (focused_ == control) return;
  const ControlId before = focused_;
  focused_ = control;
  if (before != 0) tell(before, Notice::LostFocus);
  tell(control, Notice::GotFocus);
}

void FakeWindow::caretToEnd(ControlId control) {
  mustBe(control, {Kind::Edit, Kind::Lines, Kind::RichEdit, Kind::Combo});
  caretAtEnd_[control] = true;
}

void FakeWindow::selectText(ControlId control) {
  mustBe(control, {Kind::Edit, Kind::Lines, Kind::RichEdit, Kind::Combo});
  selections_[control] = {0, texts_[control].size()};
}

void FakeWindow::repaint(ControlId control) {
  mustExist(control);
  ++repaints_[control];
}

std::string FakeWindow::selectedText(ControlId control) {
  const auto [from, to] = selections_[control];
  return texts_[control].substr(from, to - from);
}

bool FakeWindow::hasSelection(ControlId control) { return selections_[control].first < selections_[control].second; }
void FakeWindow::copySelection(ControlId control) { clipboard = selectedText(control); }
void FakeWindow::paste(ControlId control) { replaceSelection(control, clipboard); }
void FakeWindow::replaceSelection(ControlId control, std::string_view text) {
  const auto [from, to] = selections_[control];
  setText(control, std::string(texts_[control]).replace(from, to - from, text));
}
void FakeWindow::selectAll(ControlId control) { select(control, 0, texts_[control].size()); }

void FakeWindow::clearRows(ControlId control) {
  mustBe(control, {Kind::Combo, Kind::DropList, Kind::ListBox});
  rows_[control] = {};
  if (find(control) != nullptr && find(control)->kind == Kind::DropList) texts_[control].clear();
}

void FakeWindow::addRow(ControlId control, std::string_view text) {
  mustBe(control, {Kind::Combo, Kind::DropList, Kind::ListBox});
  rows_[control].texts.emplace_back(text);
}

void FakeWindow::showRow(ControlId control, int row) {
  mustBe(control, {Kind::ListBox, Kind::List});
  rows_[control].shown = row;
}

void FakeWindow::setProgressTop(ControlId control, int top) {
  mustBe(control, {Kind::Progress});
  bars_[control] = {.top = top};
}
void FakeWindow::stepProgress(ControlId control) { setProgress(control, bars_[control].position + 1); }
void FakeWindow::setProgress(ControlId control, int position) {
  mustBe(control, {Kind::Progress});
  bars_[control].position = std::min(position, bars_[control].top);
}

void FakeWindow::setColumns(ControlId list, std::span<const ListColumn> columns) {
  mustBe(list, {Kind::List});
  columns_[list].assign(columns.begin(), columns.end());
  headings_[list].clear();
  for (const ListColumn& column : columns) headings_[list].emplace_back(column.heading);
}

void FakeWindow::setHeading(ControlId list, int column, std::string_view heading) {
  mustBe(list, {Kind::List});
  headings_[list].at(static_cast<std::size_t>(column)) = heading;
}

void FakeWindow::setRowCount(ControlId list, int count) {
  mustBe(list, {Kind::List});
  rows_[list] = {.count = count};
}

void FakeWindow::orderRows(ControlId list, std::span<const int> rows) {
  mustBe(list, {Kind::List});
  if (static_cast<int>(rows.size()) != rows_[list].count) throw std::logic_error("an order of other rows");
  rows_[list].order.assign(rows.begin(), rows.end());
}

void FakeWindow::repaintRow(ControlId list, int row) {
  mustBe(list, {Kind::List});
  ++rows_[list].repaints[row];
}

int FakeWindow::selectedRow(ControlId control) {
  mustBe(control, {Kind::List, Kind::ListBox, Kind::Combo, Kind::DropList});
  const std::vector<int>& selected = rows_[control].selected;
  if (selected.empty()) return kNoRow;
  for (const int row : displayOrder(control)) {
    if (std::find(selected.begin(), selected.end(), row) != selected.end()) return row;
  }
  return selected.front();
}

void FakeWindow::selectRow(ControlId control, int row) {
  mustBe(control, {Kind::List, Kind::ListBox, Kind::Combo, Kind::DropList});
  const PlacedControl* found = find(control);
  if (found == nullptr || found->kind == Kind::List) {
    pickRow(control, row);
    return;
  }
  rows_[control].selected = row == kNoRow ? std::vector<int>() : std::vector<int>{row};
  if (found->kind != Kind::ListBox && row != kNoRow)
    texts_[control] = rows_[control].texts.at(static_cast<std::size_t>(row));
}

bool FakeWindow::isRowSelected(ControlId control, int row) {
  const std::vector<int>& selected = rows_[control].selected;
  return std::find(selected.begin(), selected.end(), row) != selected.end();
}

void FakeWindow::selectAllRows(ControlId list) {
  mustBe(list, {Kind::List});
  changeSelection(list, displayOrder(list), kNoRow, false);
}

void FakeWindow::setPicture(ControlId control, std::string_view path) {
  mustBe(control, {Kind::Picture});
  pictures_[control] = path;
}

void FakeWindow::setSwatch(ControlId control, std::optional<Colour> colour) {
  mustBe(control, {Kind::Swatch});
  swatches_[control] = colour;
}

void FakeWindow::setTextColours(ControlId control, Colour /*text*/, Colour /*background*/) { mustExist(control); }

void FakeWindow::setStatusParts(ControlId control, std::span<const int> edges) {
  mustBe(control, {Kind::StatusBar});
  statusTexts_[control].resize(edges.size());
}

void FakeWindow::setStatusText(ControlId control, int part, std::string_view text) {
  mustBe(control, {Kind::StatusBar});
  statusTexts_[control].at(static_cast<std::size_t>(part)) = text;
}

void FakeWindow::place(std::span<const Placement> placements) {
  for (const Placement& placement : placements) placements_[placement.control] = placement;
}

Rectangle FakeWindow::screenPlace(ControlId control) const {
  const PlacedControl* found = find(control);
  return found == nullptr ? Rectangle{} : found->place;
}

void FakeWindow::end(int result) {
  if (!open_) return;
  open_ = false;
  result_ = result;
  const std::shared_ptr<DialogLogic> kept = logic_;
  kept->closed();
}

}  // namespace varlo::test
