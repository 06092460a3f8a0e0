// Win32Dialog: what the logic of a dialog can ask of its window, as messages to the window's controls. Without a
// window, as after its end, everything does nothing.
#pragma once

#include <windows.h>

#include <functional>

#include "platform/dialog.h"
#include "win32/dialog_controls.h"
#include "win32/dialog_paint.h"

namespace varlo {

// Posted to a dialog for Dialog::post; the control stands in wParam.
inline constexpr UINT kPostedNoticeMessage = WM_APP + 2;

class Win32Dialog : public Dialog {
 public:
  // How the window ends, with a result.
  using Ending = std::function<void(int)>;

  // `logic` is asked for shape and cells; `teller` hears from lists.
  void attach(HWND window, Ending ending, DialogLogic* logic = nullptr, RowList::Teller teller = {});
  void detach() { window_ = nullptr; }
  [[nodiscard]] DialogControls& controls() { return controls_; }
  // Makes the controls of a shape, in a window that is attached.
  void make(const DialogShape& shape);
  // Paints a picture or a swatch, and gives the brush for a text with colours of its own, null for any other.
  void draw(const DRAWITEMSTRUCT& item);
  [[nodiscard]] HBRUSH coloursOf(HWND control, HDC canvas) const;
  [[nodiscard]] HWND window() const { return window_; }
  // Whether the logic chose where the focus is.
  [[nodiscard]] bool focusWasSet() const { return focusWasSet_; }

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

  void setColumns(ControlId control, std::span<const ListColumn> columns) override;
  void setHeading(ControlId control, int column, std::string_view heading) override;
  void setRowCount(ControlId control, int count) override;
  void orderRows(ControlId control, std::span<const int> rows) override;
  void repaintRow(ControlId control, int row) override;
  int selectedRow(ControlId control) override;
  void selectRow(ControlId control, int row) override;
  bool isRowSelected(ControlId control, int row) override;
  void selectAllRows(ControlId control) override;

  void setPicture(ControlId control, std::string_view path) override;
  void setSwatch(ControlId control, std::optional<Colour> colour) override;
  void setTextColours(ControlId control, Colour text, Colour background) override;
  void setStatusParts(ControlId control, std::span<const int> edges) override;
  void setStatusText(ControlId control, int part, std::string_view text) override;

  void setTitle(std::string_view title) override;
  void reshape() override;

  void place(std::span<const Placement> placements) override;
  [[nodiscard]] Size clientSize() const override;
  [[nodiscard]] Rectangle screenPlace(ControlId control) const override;
  void moveWindow(const Rectangle& screenPlace) override;
  [[nodiscard]] int scaled(int pixels) const override;

  void post(ControlId control) override;
  void bringToFront() override;
  void end(int result) override;

 private:
  [[nodiscard]] HWND item(ControlId control) const { return ::GetDlgItem(window_, control); }
  LRESULT send(ControlId control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  void leave(HWND control) const;

  HWND window_ = nullptr;
  Ending ending_;
  bool focusWasSet_ = false;
  DialogLogic* logic_ = nullptr;
  RowList::Teller teller_;
  DialogControls controls_;
  DialogPaint paint_;
};

// Inserts the columns of a list. Widths are pixels of an ordinary screen.
void InsertListColumns(HWND list, std::span<const ListColumn> columns);

}  // namespace varlo
