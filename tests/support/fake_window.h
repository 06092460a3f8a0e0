// A dialog's window for tests. It echoes a change notice whenever a text is set, as real controls do,
// and lets a test act as the user.
#pragma once

#include <algorithm>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/dialog.h"

namespace varlo::test {

class FakeWindow : public Dialog {
 public:
  explicit FakeWindow(DialogLogic& logic);
  ~FakeWindow() override;
  FakeWindow(const FakeWindow&) = delete;
  FakeWindow& operator=(const FakeWindow&) = delete;

  std::string clipboard;

  // The window opens, as the system does it: the logic fills it.
  void open() {
    logic_.opened(*this);
    logic_.resized(*this);
  }

  // What a user does.
  void type(ControlId control, std::string_view text) { setText(control, text); }
  void enter(ControlId control) { focus(control); }
  void press(ControlId button) {
    if (isEnabled(button)) tell(button, Notice::Clicked);
  }
  void pickRow(ControlId list, int row) {
    rows_[list].selected = row;
    tell(list, Notice::RowSelected);
  }
  void close() { logic_.closeRequested(*this); }
  void resize(Size size) {
    size_ = size;
    logic_.resized(*this);
  }
  // Selects in a rich edit, from a position to another.
  void select(ControlId control, std::size_t from, std::size_t to) { selections_[control] = {from, to}; }
  // Picks a row of a combo box; the field has its text after the notice.
  void pickComboRow(ControlId combo, std::size_t row) {
    tell(combo, Notice::RowSelected);
    texts_[combo] = combos_[combo].at(row);
  }
  // What was posted reaches the logic.
  void deliverPosts() {
    while (!posts_.empty()) {
      const ControlId control = posts_.front();
      posts_.pop_front();
      tell(control, Notice::Posted);
    }
  }

  // What a user sees.
  [[nodiscard]] bool isEnabled(ControlId control) const {
    const auto found = enabled_.find(control);
    return found == enabled_.end() || found->second;
  }
  [[nodiscard]] bool isOpen() const { return open_; }
  [[nodiscard]] int result() const { return result_; }
  [[nodiscard]] ControlId focused() const { return focused_; }
  // The limit of a field, 0 when none was set.
  [[nodiscard]] int limitOf(ControlId control) const {
    const auto found = limits_.find(control);
    return found == limits_.end() ? 0 : found->second;
  }
  [[nodiscard]] const std::vector<std::string>& comboRows(ControlId control) { return combos_[control]; }
  [[nodiscard]] const std::vector<ListColumn>& columns(ControlId list) { return columns_[list]; }
  [[nodiscard]] int rowCount(ControlId list) { return rows_[list].count; }
  [[nodiscard]] std::string cell(ControlId list, int row, int column) { return logic_.cellText(list, row, column); }
  [[nodiscard]] int repaints(ControlId control) { return repaints_[control]; }
  [[nodiscard]] bool caretAtEnd(ControlId control) { return caretAtEnd_[control]; }

  [[nodiscard]] const std::vector<std::string>& listBoxRows(ControlId control) { return listBoxes_[control].rows; }
  [[nodiscard]] int shownListBoxRow(ControlId control) { return listBoxes_[control].shown; }
  [[nodiscard]] bool isShown(ControlId control) const {
    const auto found = placements_.find(control);
    return found == placements_.end() || found->second.shown;
  }
  [[nodiscard]] const std::map<ControlId, Placement>& placements() const { return placements_; }
  [[nodiscard]] bool inFront() const { return inFront_; }
  [[nodiscard]] int progress(ControlId control) { return bars_[control].position; }
  [[nodiscard]] int progressTop(ControlId control) { return bars_[control].top; }

  std::string text(ControlId control) override { return texts_[control]; }
  void setText(ControlId control, std::string_view text) override {
    texts_[control] = text;
    selections_[control] = {};
    caretAtEnd_[control] = false;
    tell(control, Notice::Changed);
  }
  void limitText(ControlId control, int size) override { limits_[control] = size; }
  void enable(ControlId control, bool on) override { enabled_[control] = on; }
  bool isChecked(ControlId control) override { return checked_[control]; }
  void check(ControlId control, bool on) override { checked_[control] = on; }
  void focus(ControlId control) override {
    if (focused_ == control) return;
    const ControlId before = focused_;
    focused_ = control;
    if (before != 0) tell(before, Notice::LostFocus);
    tell(control, Notice::GotFocus);
  }
  void caretToEnd(ControlId control) override { caretAtEnd_[control] = true; }
  void repaint(ControlId control) override { ++repaints_[control]; }
  bool hasSelection(ControlId control) override { return selections_[control].first < selections_[control].second; }
  void copySelection(ControlId control) override { clipboard = selectedText(control); }
  void paste(ControlId control) override { replaceSelection(control, clipboard); }
  void replaceSelection(ControlId control, std::string_view text) override {
    const auto [from, to] = selections_[control];
    setText(control, std::string(texts_[control]).replace(from, to - from, text));
  }
  void selectAll(ControlId control) override { select(control, 0, texts_[control].size()); }
  void place(std::span<const Placement> placements) override {
    for (const Placement& placement : placements) placements_[placement.control] = placement;
  }
  [[nodiscard]] Size clientSize() const override { return size_; }
  [[nodiscard]] int scaled(int pixels) const override { return pixels; }
  void post(ControlId control) override { posts_.push_back(control); }
  void bringToFront() override { inFront_ = true; }
  void clearCombo(ControlId control) override { combos_[control].clear(); }
  void addComboRow(ControlId control, std::string_view text) override { combos_[control].emplace_back(text); }
  void clearListBox(ControlId control) override { listBoxes_[control] = {}; }
  void addListBoxRow(ControlId control, std::string_view text) override {
    listBoxes_[control].rows.emplace_back(text);
  }
  void showListBoxRow(ControlId control, int row) override { listBoxes_[control].shown = row; }
  void setProgressTop(ControlId control, int top) override { bars_[control] = {.top = top}; }
  void stepProgress(ControlId control) override { setProgress(control, bars_[control].position + 1); }
  void setProgress(ControlId control, int position) override {
    bars_[control].position = std::min(position, bars_[control].top);
  }
  void setColumns(ControlId list, std::span<const ListColumn> columns) override {
    columns_[list].assign(columns.begin(), columns.end());
  }
  void setRowCount(ControlId list, int count) override { rows_[list] = {count, kNoRow}; }
  int selectedRow(ControlId list) override { return rows_[list].selected; }
  void selectRow(ControlId list, int row) override { pickRow(list, row); }
  void end(int result) override {
    open_ = false;
    result_ = result;
  }

 private:
  struct Rows {
    int count = 0;
    int selected = kNoRow;
  };
  struct ListBox {
    std::vector<std::string> rows;
    int shown = kNoRow;
  };
  struct Bar {
    int top = 100;
    int position = 0;
  };
  [[nodiscard]] std::string selectedText(ControlId control) {
    const auto [from, to] = selections_[control];
    return texts_[control].substr(from, to - from);
  }
  void tell(ControlId control, Notice notice) { logic_.notified(*this, {control, notice}); }

  DialogLogic& logic_;
  std::map<ControlId, std::string> texts_;
  std::map<ControlId, bool> enabled_;
  std::map<ControlId, bool> checked_;
  std::map<ControlId, bool> caretAtEnd_;
  std::map<ControlId, int> limits_;
  std::map<ControlId, int> repaints_;
  std::map<ControlId, std::vector<std::string>> combos_;
  std::map<ControlId, std::vector<ListColumn>> columns_;
  std::map<ControlId, Rows> rows_;
  std::map<ControlId, ListBox> listBoxes_;
  std::map<ControlId, Bar> bars_;
  std::map<ControlId, std::pair<std::size_t, std::size_t>> selections_;
  std::map<ControlId, Placement> placements_;
  std::deque<ControlId> posts_;
  Size size_{640, 480};
  bool inFront_ = false;
  ControlId focused_ = 0;
  bool open_ = true;
  int result_ = 0;
};

}  // namespace varlo::test
