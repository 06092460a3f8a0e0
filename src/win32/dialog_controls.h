// DialogControls: the controls of a dialog's window, made from the shape and laid out for the size of the window.
// Where the window is too low for them, it scrolls.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <vector>

#include "core/forms/lay_out.h"
#include "platform/dialog.h"
#include "win32/row_list.h"

namespace varlo {

class DialogControls {
 public:
  DialogControls() = default;
  ~DialogControls();
  DialogControls(const DialogControls&) = delete;
  DialogControls& operator=(const DialogControls&) = delete;

  // Makes all controls of `shape` in `window`, and removes those that it had before.
  void make(HWND window, const DialogShape& shape, DialogLogic* logic, const RowList::Teller& teller);
  // Moves all controls to where they belong now; nothing in a window whose logic places them.
  void layOut();
  // The window's scroll bar was used, or the wheel turned by so many lines.
  void scroll(int code);
  void scrollLines(int lines);
  // Scrolls so that a control inside the window can be seen.
  void reveal(HWND control);

  // The list in columns of a number, null for none.
  [[nodiscard]] RowList* list(ControlId control) const;
  [[nodiscard]] RowList* listOf(HWND control) const;
  // The kind of a control, Kind::None for one that is not of the shape.
  [[nodiscard]] Kind kindOf(ControlId control) const;
  // All radio buttons of the choice that one belongs to.
  [[nodiscard]] std::vector<ControlId> choiceOf(ControlId radio) const;
  [[nodiscard]] const DialogShape* shape() const { return shape_; }

 private:
  struct Made {
    PlacedControl control;
    HWND window = nullptr;
  };
  void clear();
  void setScrollRange(int height, int visible);
  void scrollTo(int position);

  HWND window_ = nullptr;
  const DialogShape* shape_ = nullptr;
  std::vector<Made> made_;
  std::map<ControlId, std::unique_ptr<RowList>> lists_;
  std::vector<std::unique_ptr<RowList>> retired_;  // of controls that were made anew, which may be at work still
  int scrolled_ = 0;                               // pixels above the window's top
  bool laying_ = false;
};

}  // namespace varlo
