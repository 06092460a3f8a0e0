// A dialog's window for tests, made from the shape of its logic. It knows its controls: a logic that speaks to one
// that is not there, or is of another kind, fails the test. It echoes a change notice whenever a text is set, as real
// controls do, and lets a test act as the user.
#pragma once

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/forms/lay_out.h"
#include "platform/dialog.h"

namespace varlo::test {

class FakeWindow : public Dialog {
 public:
  explicit FakeWindow(DialogLogic& logic);
  // Keeps the logic, as the window of a modeless dialog and of a page does.
  explicit FakeWindow(std::shared_ptr<DialogLogic> logic);
  // A window with a shape, which tells nobody.
  explicit FakeWindow(const DialogShape& shape);
  ~FakeWindow() override;
  FakeWindow(const FakeWindow&) = delete;
  FakeWindow& operator=(const FakeWindow&) = delete;

  std::string clipboard;

  // The window opens, as the system does it: the logic fills it.
  void open();

  // What a user does. Nothing happens in a control that is disabled or hidden.
  void type(ControlId control, std::string_view text);
  void enter(ControlId control) { focus(control); }
  void press(ControlId button);
  // The user closes the window, or presses Escape.
  void close();
  // Return: presses the default button.
  void pressReturn();
  void resize(Size size);
  void pickRow(ControlId list, int row);
  void pickRows(ControlId list, const std::vector<int>& rows);
  // Goes to a row of a list by an arrow key.
  void goToRow(ControlId list, int row);
  void clickRow(ControlId list, int row, int column = 0);
  void doubleClickRow(ControlId list, int row, int column = 0);
  void rightClickRow(ControlId list, int row, int column = 0);
  void clickHeading(ControlId list, int column);
  void pressKey(ControlId list, Key key, bool withControl = false);
  // Picks a row of a combo box; the field has its text after the notice.
  void pickComboRow(ControlId combo, std::size_t row);
  // Selects in a rich edit, from a position to another.
  void select(ControlId control, std::size_t from, std::size_t to) { selections_[control] = {from, to}; }
  // What was posted reaches the logic.
  void deliverPosts();

  // What a user sees.
  [[nodiscard]] bool isEnabled(ControlId control) const;
  [[nodiscard]] bool isShown(ControlId control) const;
  [[nodiscard]] bool isOpen() const { return open_; }
  [[nodiscard]] int result() const { return result_; }
  [[nodiscard]] ControlId focused() const { return focused_; }
  [[nodiscard]] const std::string& title() const { return title_; }
  // The limit of a field, 0 when none was set.
  [[nodiscard]] int limitOf(ControlId control) const {
    const auto found = limits_.find(control);
    return found == limits_.end() ? 0 : found->second;
  }
  // Rows of a combo box, a drop list or a list box.
  [[nodiscard]] const std::vector<std::string>& rows(ControlId control) { return rows_[control].texts; }
  [[nodiscard]] const std::vector<ListColumn>& columns(ControlId list) { return columns_[list]; }
  [[nodiscard]] std::vector<std::string> headings(ControlId list);
  [[nodiscard]] int rowCount(ControlId list) { return rows_[list].count; }
  [[nodiscard]] std::string cell(ControlId list, int row, int column) { return logic_->cellText(list, row, column); }
  [[nodiscard]] int mark(ControlId list, int row) { return logic_->rowMark(list, row); }
  // The numbers of the rows of a list from top to bottom.
  [[nodiscard]] std::vector<int> displayOrder(ControlId list);
  [[nodiscard]] std::vector<int> selectedRows(ControlId list);
  [[nodiscard]] int shownRow(ControlId control) { return rows_[control].shown; }
  [[nodiscard]] int repaints(ControlId control) { return repaints_[control]; }
  [[nodiscard]] int rowRepaints(ControlId list, int row) { return rows_[list].repaints[row]; }
  [[nodiscard]] bool caretAtEnd(ControlId control) { return caretAtEnd_[control]; }
  [[nodiscard]] bool textSelected(ControlId control);
  [[nodiscard]] const std::map<ControlId, Placement>& placements() const { return placements_; }
  [[nodiscard]] bool inFront() const { return inFront_; }
  [[nodiscard]] int progress(ControlId control) { return bars_[control].position; }
  [[nodiscard]] int progressTop(ControlId control) { return bars_[control].top; }
  [[nodiscard]] const std::string& picture(ControlId control) { return pictures_[control]; }
  [[nodiscard]] std::optional<Colour> swatch(ControlId control) { return swatches_[control]; }
  [[nodiscard]] const std::vector<std::string>& statusTexts(ControlId control) { return statusTexts_[control]; }
  [[nodiscard]] const Rectangle& windowPlace() const { return windowPlace_; }
  [[nodiscard]] ControlId defaultButton() const;
  // The controls that the Tab key goes to, in its order.
  [[nodiscard]] std::vector<ControlId> tabOrder() const;
  // The whole window as text: a line for each control, with label, kind, text and state.
  [[nodiscard]] std::string describe();

  // As the logic sees it.
  std::string text(ControlId control) override;
  void setText(ControlId control, std::string_view text) override;
  void limitText(ControlId control, int size) override;
  void enable(ControlId control, bool on) override;
  void show(ControlId control, bool on) override;
  bool isChecked(ControlId control) override;
  void check(ControlId control, bool on) override;
  void focus(ControlId control) override;
  void caretToEnd(ControlId control) override;
  void selectText(ControlId control) override;
  void repaint(ControlId control) override;
  bool hasSelection(ControlId control) override;
  void copySelection(ControlId control) override;
  void paste(ControlId control) override;
  void replaceSelection(ControlId control, std::string_view text) override;
  void selectAll(ControlId control) override;
  void clearRows(ControlId control) override;
  void addRow(ControlId control, std::string_view text) override;
  void showRow(ControlId control, int row) override;
  void setProgressTop(ControlId control, int top) override;
  void stepProgress(ControlId control) override;
  void setProgress(ControlId control, int position) override;
  void setColumns(ControlId list, std::span<const ListColumn> columns) override;
  void setHeading(ControlId list, int column, std::string_view heading) override;
  void setRowCount(ControlId list, int count) override;
  void orderRows(ControlId list, std::span<const int> rows) override;
  void repaintRow(ControlId list, int row) override;
  int selectedRow(ControlId control) override;
  void selectRow(ControlId control, int row) override;
  bool isRowSelected(ControlId control, int row) override;
  void selectAllRows(ControlId list) override;
  void setPicture(ControlId control, std::string_view path) override;
  void setSwatch(ControlId control, std::optional<Colour> colour) override;
  void setTextColours(ControlId control, Colour text, Colour background) override;
  void setStatusParts(ControlId control, std::span<const int> edges) override;
  void setStatusText(ControlId control, int part, std::string_view text) override;
  void setTitle(std::string_view title) override { title_ = title; }
  void reshape() override;
  void place(std::span<const Placement> placements) override;
  [[nodiscard]] Size clientSize() const override { return size_; }
  [[nodiscard]] Rectangle screenPlace(ControlId control) const override;
  void moveWindow(const Rectangle& place) override { windowPlace_ = place; }
  [[nodiscard]] int scaled(int pixels) const override { return pixels; }
  void post(ControlId control) override { posts_.push_back(control); }
  void bringToFront() override { inFront_ = true; }
  void end(int result) override;

 private:
  struct Rows {
    std::vector<std::string> texts{};  // of plain rows
    int count = 0;                     // of a list
    std::vector<int> order{};          // of a list, empty for that of the numbers
    std::vector<int> selected{};
    int shown = kNoRow;
    std::map<int, int> repaints{};
  };
  struct Bar {
    int top = 100;
    int position = 0;
  };
  void make();
  [[nodiscard]] const PlacedControl* find(ControlId control) const;
  // Throws, which fails the test, where there is no such control, or none of one of these kinds.
  void mustBe(ControlId control, std::initializer_list<Kind> kinds) const;
  void mustExist(ControlId control) const { mustBe(control, {}); }
  [[nodiscard]] bool canUse(ControlId control) const { return isEnabled(control) && isShown(control); }
  [[nodiscard]] std::string selectedText(ControlId control);
  [[nodiscard]] std::string stateOf(const PlacedControl& control);
  void changeSelection(ControlId list, std::vector<int> rows, int row, bool byKey);
  void tell(ControlEvent event);
  void tell(ControlId control, Notice notice) { tell({.control = control, .notice = notice}); }

  std::shared_ptr<DialogLogic> logic_;  // without a share in it where the test keeps it
  const DialogShape* shape_ = nullptr;
  std::vector<PlacedControl> controls_;
  std::map<ControlId, std::string> texts_;
  std::map<ControlId, bool> enabled_;
  std::map<ControlId, bool> shown_;
  std::map<ControlId, bool> checked_;
  std::map<ControlId, bool> caretAtEnd_;
  std::map<ControlId, int> limits_;
  std::map<ControlId, int> repaints_;
  std::map<ControlId, std::vector<ListColumn>> columns_;
  std::map<ControlId, std::vector<std::string>> headings_;
  std::map<ControlId, Rows> rows_;
  std::map<ControlId, Bar> bars_;
  std::map<ControlId, std::string> pictures_;
  std::map<ControlId, std::optional<Colour>> swatches_;
  std::map<ControlId, std::vector<std::string>> statusTexts_;
  std::map<ControlId, std::pair<std::size_t, std::size_t>> selections_;
  std::map<ControlId, Placement> placements_;
  std::deque<ControlId> posts_;
  std::string title_;
  Rectangle windowPlace_{};
  Size size_{640, 480};
  bool inFront_ = false;
  ControlId focused_ = 0;
  bool open_ = true;
  int result_ = 0;
};

}  // namespace varlo::test
