// The seam between the logic of a page or dialog and its window. The logic knows controls by number and
// has no toolkit in it; the window turns its messages into the calls of DialogLogic, and the calls of
// Dialog into messages.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/geometry.h"

namespace varlo {

// A control of a dialog; the numbers stand in control_ids.h.
using ControlId = int;

enum class Notice {
  Changed,        // the text of an edit field changed, also by setText
  GotFocus,       // the control has the focus now
  LostFocus,      // the focus went away
  Clicked,        // a button, or a row of a list
  DoubleClicked,  // a row of a list
  RowSelected,    // another row of a list or a combo box is selected, or none; a combo box has its text after it
  Posted,         // the logic's own, by Dialog::post
  Other,          // anything else
};

struct ControlEvent {
  ControlId control = 0;
  Notice notice = Notice::Clicked;
};

// A column of a list: heading, and width in pixels of an ordinary screen.
struct ListColumn {
  std::string_view heading;
  int width = 0;
};

// Where a control belongs.
struct Placement {
  ControlId control = 0;
  Rectangle place;
  bool shown = true;
};

inline constexpr int kNoRow = -1;

// What the logic of a dialog can ask of its window.
struct Dialog {
  virtual ~Dialog() = default;

  virtual std::string text(ControlId control) = 0;
  // Sets a text; an edit field then tells that it changed, as if the user had typed it.
  virtual void setText(ControlId control, std::string_view text) = 0;
  // Limits what the user can type to `size` bytes.
  virtual void limitText(ControlId control, int size) = 0;
  virtual void enable(ControlId control, bool on) = 0;
  virtual bool isChecked(ControlId control) = 0;
  virtual void check(ControlId control, bool on) = 0;
  virtual void focus(ControlId control) = 0;
  // Puts the caret of an edit field behind its text.
  virtual void caretToEnd(ControlId control) = 0;
  // Paints a control anew, at once.
  virtual void repaint(ControlId control) = 0;

  // Rich edits: whether something is selected; the selection to and from the clipboard; another text in its
  // place; everything selected.
  virtual bool hasSelection(ControlId control) = 0;
  virtual void copySelection(ControlId control) = 0;
  virtual void paste(ControlId control) = 0;
  virtual void replaceSelection(ControlId control, std::string_view text) = 0;
  virtual void selectAll(ControlId control) = 0;

  // Combo boxes: empty the list below the edit field, append a row.
  virtual void clearCombo(ControlId control) = 0;
  virtual void addComboRow(ControlId control, std::string_view text) = 0;

  // List boxes of plain rows: empty one, append a row, scroll to a row.
  virtual void clearListBox(ControlId control) = 0;
  virtual void addListBoxRow(ControlId control, std::string_view text) = 0;
  virtual void showListBoxRow(ControlId control, int row) = 0;

  // Progress bars go from 0 to a top in steps of 1; a new top sets the bar to 0.
  virtual void setProgressTop(ControlId control, int top) = 0;
  virtual void stepProgress(ControlId control) = 0;
  virtual void setProgress(ControlId control, int position) = 0;

  // Lists in columns: rows hold no text, each cell is asked for by DialogLogic::cellText when shown.
  virtual void setColumns(ControlId control, std::span<const ListColumn> columns) = 0;
  virtual void setRowCount(ControlId control, int count) = 0;
  virtual int selectedRow(ControlId control) = 0;
  virtual void selectRow(ControlId control, int row) = 0;

  // Moves, shows and hides controls, all at once. Sizes are pixels of this screen.
  virtual void place(std::span<const Placement> placements) = 0;
  [[nodiscard]] virtual Size clientSize() const = 0;
  // `pixels` of an ordinary screen (96 dots an inch) on this one.
  [[nodiscard]] virtual int scaled(int pixels) const = 0;

  // Tells the logic Notice::Posted of `control` after the current call has returned.
  virtual void post(ControlId control) = 0;
  // Puts the window of a modeless dialog in front, restored if it was an icon.
  virtual void bringToFront() = 0;
  // Closes the dialog with a result.
  virtual void end(int result) = 0;
};

// What a window tells the logic of its dialog.
struct DialogLogic {
  virtual ~DialogLogic() = default;
  virtual void opened(Dialog& dialog) = 0;
  virtual void notified(Dialog& dialog, const ControlEvent& event) = 0;
  // Text of a cell of a list.
  virtual std::string cellText(ControlId /*list*/, int /*row*/, int /*column*/) { return {}; }
  // The window's close box or Escape; as Cancel, unless a dialog says otherwise.
  virtual void closeRequested(Dialog& dialog) { dialog.end(0); }
  // The window has another size; also once after opened.
  virtual void resized(Dialog& /*dialog*/) {}
  // The window is gone. The last call.
  virtual void closed() {}
};

}  // namespace varlo
