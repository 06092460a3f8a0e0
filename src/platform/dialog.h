// The seam between the logic of a page or dialog and its window. The logic tells its shape, knows controls by number
// and has no toolkit in it; the window is made from the shape, turns its messages into the calls of DialogLogic, and
// the calls of Dialog into messages.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/dialog_shape.h"
#include "platform/geometry.h"

namespace varlo {

enum class Notice {
  Changed,           // the text of an edit field changed, also by setText
  GotFocus,          // the control has the focus now
  LostFocus,         // the focus went away
  Clicked,           // a button; a row of a list, or beside the rows; a combo box was opened or closed
  DoubleClicked,     // a row of a list, or beside the rows
  RightClicked,      // the same with the other button, or the key for the popup menu
  HeadingClicked,    // of a column of a list
  SelectionChanged,  // other rows of a list or a combo box are selected, or none; a combo box has its text after it
  KeyPressed,        // in a list; a key that means something to the program
  Posted,            // the logic's own, by Dialog::post
};

// A key in the tree or in a list that means something to the program.
enum class Key { Other, Delete, Control, Up, Down, KeypadPlus, KeypadMinus, A };

inline constexpr int kNoRow = -1;

struct ControlEvent {
  ControlId control = 0;
  Notice notice = Notice::Clicked;
  int row = kNoRow;          // of a list: that was clicked, or has the focus
  int column = 0;            // of a list: that was clicked
  Point point{};             // on the screen: where the mouse is, or the popup menu belongs
  Key key = Key::Other;      // of KeyPressed
  bool withControl = false;  // Ctrl was held
  bool byKey = false;        // SelectionChanged by a key: told once for the key, of the row that it went to
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

// A colour, red in the lowest byte, then green, then blue.
using Colour = std::uint32_t;

// What the logic of a dialog can ask of its window.
struct Dialog {
  virtual ~Dialog() = default;

  // The text of a field, or of a control that shows one.
  virtual std::string text(ControlId control) = 0;
  // Sets a text; an edit field then tells that it changed, as if the user had typed it.
  virtual void setText(ControlId control, std::string_view text) = 0;
  // Limits what the user can type to `size` bytes; 0 is as much as the control can hold.
  virtual void limitText(ControlId control, int size) = 0;
  virtual void enable(ControlId control, bool on) = 0;
  virtual void show(ControlId control, bool on) = 0;
  virtual bool isChecked(ControlId control) = 0;
  // Ticks a check box, or one of several radio buttons instead of the others.
  virtual void check(ControlId control, bool on) = 0;
  virtual void focus(ControlId control) = 0;
  // Puts the caret of an edit field behind its text.
  virtual void caretToEnd(ControlId control) = 0;
  virtual void selectText(ControlId control) = 0;
  // Paints a control anew, at once.
  virtual void repaint(ControlId control) = 0;

  // Rich edits: whether something is selected; the selection to and from the clipboard; another text in its
  // place; everything selected.
  virtual bool hasSelection(ControlId control) = 0;
  virtual void copySelection(ControlId control) = 0;
  virtual void paste(ControlId control) = 0;
  virtual void replaceSelection(ControlId control, std::string_view text) = 0;
  virtual void selectAll(ControlId control) = 0;

  // Combo boxes, drop lists and list boxes: rows of plain text. Emptying the rows of a combo box leaves its field.
  virtual void clearRows(ControlId control) = 0;
  virtual void addRow(ControlId control, std::string_view text) = 0;
  // Scrolls to a row, of a list as well.
  virtual void showRow(ControlId control, int row) = 0;

  // Progress bars go from 0 to a top in steps of 1; a new top sets the bar to 0.
  virtual void setProgressTop(ControlId control, int top) = 0;
  virtual void stepProgress(ControlId control) = 0;
  virtual void setProgress(ControlId control, int position) = 0;

  // Lists in columns: rows hold no text, each cell is asked for by DialogLogic::cellText when shown. A row keeps its
  // number wherever it is displayed. A new count deselects all, and displays the rows in the order of their numbers.
  virtual void setColumns(ControlId control, std::span<const ListColumn> columns) = 0;
  virtual void setHeading(ControlId control, int column, std::string_view heading) = 0;
  virtual void setRowCount(ControlId control, int count) = 0;
  // Displays the rows in another order: the numbers of all rows from top to bottom. The selection stays.
  virtual void orderRows(ControlId control, std::span<const int> rows) = 0;
  virtual void repaintRow(ControlId control, int row) = 0;

  // The selection of combo boxes, drop lists, list boxes and lists. Of several rows the first on display counts.
  virtual int selectedRow(ControlId control) = 0;
  // Selects one row alone, or none. It is told as the user's doing would be in a list, but not in a combo box.
  virtual void selectRow(ControlId control, int row) = 0;
  virtual bool isRowSelected(ControlId control, int row) = 0;
  virtual void selectAllRows(ControlId control) = 0;

  // A bitmap for a picture, by the name of its file; an empty name, or a file that can't be shown, is none.
  virtual void setPicture(ControlId control, std::string_view path) = 0;
  // The colour of a swatch; none is that of an ordinary button.
  virtual void setSwatch(ControlId control, std::optional<Colour> colour) = 0;
  // The colours of a read-only text.
  virtual void setTextColours(ControlId control, Colour text, Colour background) = 0;
  // Right edges of the parts of a status bar, in pixels of an ordinary screen, -1 is the window's; the text of one.
  virtual void setStatusParts(ControlId control, std::span<const int> edges) = 0;
  virtual void setStatusText(ControlId control, int part, std::string_view text) = 0;

  virtual void setTitle(std::string_view title) = 0;
  // Makes all controls anew from the shape that the logic tells now, empty; the window keeps its place.
  virtual void reshape() = 0;

  // Moves, shows and hides controls that are not laid out by the shape, all at once. Pixels of this screen.
  virtual void place(std::span<const Placement> placements) = 0;
  [[nodiscard]] virtual Size clientSize() const = 0;
  // Where a control is on the screen, and moving the whole window there.
  [[nodiscard]] virtual Rectangle screenPlace(ControlId control) const = 0;
  virtual void moveWindow(const Rectangle& screenPlace) = 0;
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
  [[nodiscard]] virtual const DialogShape& shape() const = 0;
  virtual void opened(Dialog& dialog) = 0;
  virtual void notified(Dialog& dialog, const ControlEvent& event) = 0;
  // Text of a cell of a list.
  virtual std::string cellText(ControlId /*list*/, int /*row*/, int /*column*/) { return {}; }
  // The mark of a row of a list with marks: an index of the item images.
  virtual int rowMark(ControlId /*list*/, int /*row*/) { return 0; }
  // The window's close box or Escape; as Cancel, unless a dialog says otherwise.
  virtual void closeRequested(Dialog& dialog) { dialog.end(0); }
  // The window has another size, and its controls are laid out; also once after opened.
  virtual void resized(Dialog& /*dialog*/) {}
  // The window is gone. The last call.
  virtual void closed() {}
};

}  // namespace varlo
