// A dialog as data: its rows from top to bottom, each with cells from left to right. A cell is a field with its label
// and its small buttons, or holds rows of its own. The host makes the controls in this order, which is that of the
// Tab key too, and lays them out (core/forms/lay_out.h). All sizes are pixels of an ordinary screen (96 dots an
// inch).
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/geometry.h"

namespace varlo {

// A control of a dialog: an enumerator of the dialog's own file. No two windows share a number but those below, since
// the help pane knows each control, and each window, by it.
using ControlId = int;

// Buttons that every dialog may have. Return presses OK, Escape presses Cancel.
inline constexpr ControlId kOk = 1;
inline constexpr ControlId kCancel = 2;
inline constexpr ControlId kHelp = 9;

enum class Kind : std::uint8_t {
  None,      // no cell
  Space,     // nothing is shown
  Box,       // holds rows
  Group,     // the same in a frame, with its label on top
  Text,      // text that only the program changes
  Edit,      // one line
  Lines,     // several lines
  RichEdit,  // a long text
  Combo,     // one line with a list of choices below
  DropList,  // the choices alone
  Check,
  Radio,  // those that follow each other are one choice
  Button,
  ListBox,  // rows of plain text
  List,     // rows in columns, whose texts are asked for when they are drawn
  Progress,
  Picture,  // a bitmap, centred in a frame
  Swatch,   // a button that shows a colour
  StatusBar,
  Rule,  // a line from left to right
  Icon,  // of the program
  Tree,  // what the main window alone has: the store tree, the list of its items, the tabs
  ItemList,
  Tabs,
};

// What a cell does other than its kind alone says.
enum class Option : std::uint16_t {
  None = 0,
  ReadOnly = 1,        // Edit, Lines, RichEdit: shows, and takes no typing
  Returns = 2,         // Lines: Return begins a new line
  ManyRows = 4,        // List: several rows can be selected
  Marks = 8,           // List: each row has a mark, a picture of the item images
  FixedHeadings = 16,  // List: a click on a heading means nothing
  RightLabel = 32,     // the label ends at its field
  Plain = 64,          // Text: "&" is an ampersand; what is too long ends in dots
  Hidden = 128,        // not shown until the logic shows it
  SortedRows = 256,    // Combo, DropList, ListBox: rows are kept in the order of the alphabet
  Default = 512,       // Button: Return presses it
  CentredText = 1024,  // Text
  Tight = 2048,        // Button: as wide as its width says, at the left of its cell
};
constexpr Option operator|(Option a, Option b) {
  return static_cast<Option>(static_cast<std::uint16_t>(a) | static_cast<std::uint16_t>(b));
}
[[nodiscard]] constexpr bool Has(Option options, Option one) {
  return (static_cast<std::uint16_t>(options) & static_cast<std::uint16_t>(one)) != 0;
}

// A button, or a swatch, at the right end of a field.
struct SmallButton {
  ControlId id = 0;  // 0: none
  std::string_view label{};
  int width = 28;
  Kind kind = Kind::Button;
  Option options = Option::None;
};

// Where a label stands, instead of a width for one on the left.
inline constexpr int kLabelAbove = -1;
inline constexpr int kLabelUnseen = -2;  // a screen reader alone knows it

// Takes the height that the other rows leave.
inline constexpr int kFill = 0;

struct Row;

struct Cell {
  ControlId id = 0;  // 0: the logic never speaks to it
  Kind kind = Kind::None;
  std::string_view label{};  // with "&" before its mnemonic; of a Button, Check, Radio, Text or Group its own text
  int labelWidth = 0;        // of a label on the left, its gap included
  int width = 0;             // of the whole cell; 0: those without one share what is left
  int lines = 1;             // height in lines of text, or kFill
  Option options = Option::None;
  SmallButton buttons[3]{};
  std::span<const Row> rows{};  // of a Box or a Group
  ControlId help = 0;           // whose help is shown while it has the focus; 0: its own
};

inline constexpr int kMostCells = 6;

struct Row {
  Cell cells[kMostCells]{};
  int gapAbove = 0;  // beyond the usual gap
};

enum class Form : std::uint8_t {
  Modal,
  Modeless,
  Page,  // inside the main window
  Main,  // the main window: its logic places what is in it
};

struct FootButton {
  ControlId id = 0;
  std::string_view label{};
  Option options = Option::None;
};

struct DialogShape {
  ControlId id = 0;  // the number by which the help pane knows the window
  std::string_view title{};
  Form form = Form::Modal;
  Size size{};  // of the inside; a height of 0 is what the rows need
  bool resizable = false;
  std::span<const Row> rows{};
  std::span<const FootButton> foot{};  // on the right below the rows
};

}  // namespace varlo
