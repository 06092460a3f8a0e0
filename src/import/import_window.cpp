#include "import/import_window.h"

#include <algorithm>
#include <optional>

#include "core/forms/field_text.h"
#include "core/forms/raised.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/number_text.h"
#include "import/import_fields.h"
#include "import/import_menus.h"
#include "import/import_messages.h"

namespace varlo {
namespace {

using namespace import_window;

constexpr Cell field(ControlId id, std::string_view label, int labelWidth) {
  return Cell{.id = id, .kind = Kind::Edit, .label = label, .labelWidth = labelWidth, .options = Option::RightLabel};
}

constexpr Cell button(ControlId id, std::string_view label) {
  return Cell{.id = id, .kind = Kind::Button, .label = label, .width = 86};
}

constexpr Row kRows[] = {
    {{field(kDelimiter, "&Field Delimiter:", 92), field(kQuote, "&Quote Character:", 104),
      field(kQuoteEscape, "Quote &Escape Character:", 140), field(kDecimalPoint, "&Decimal Point:", 88)}},
    {{{.id = kTable,
       .kind = Kind::List,
       .label = "Records",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::ManyRows}},
     4},
    {{{.id = kRecord, .kind = Kind::Lines, .label = "Record", .labelWidth = kLabelUnseen, .lines = 3}}},
    {{{.kind = Kind::Space},
      button(kImport, "&Import"),
      button(kUpdate, "&Update"),
      button(kSelectAll, "Select &All"),
      button(kCancel, "&Cancel"),
      button(kHelp, "&Help")},
     4},
    {{{.id = kStatus, .kind = Kind::StatusBar}}},
};

constexpr ControlId kDialectFields[] = {kDelimiter, kQuote, kQuoteEscape, kDecimalPoint};

// More columns are not shown, since a table of many thousands would not come up in a person's time. They could carry
// nothing anyway.
constexpr int kMostColumns = 1000;

// The count of the rows has the first part of the status bar.
constexpr int kStatusParts[] = {100, -1};

// Widths in pixels of an ordinary screen.
constexpr int kLetter = 7;
constexpr int kNarrowest = 50;
constexpr int kWidest = 260;

int widthFor(std::size_t letters) {
  return std::clamp(static_cast<int>(std::min<std::size_t>(letters, kWidest)) * kLetter + kLetter, kNarrowest,
                    kWidest);
}

std::string_view longestRow(const ImportRows& rows) {
  std::string_view longest;
  for (const ImportRow& row : rows) {
    if (row.text.view().size() > longest.size()) longest = row.text.view();
  }
  return longest;
}

int mostFields(const ImportSheet& sheet) {
  int most = 0;
  for (const ImportRow& row : sheet.rows) most = std::max(most, CountFields(sheet.dialect, row.text.view()));
  return most;
}

}  // namespace

constinit const DialogShape ImportWindow::kShape{.id = kWindow,
                                                 .title = "Varlo PRO - Data Import",
                                                 .form = Form::Modeless,
                                                 .size = {680, 480},
                                                 .resizable = true,
                                                 .rows = kRows};

void ImportWindow::opened(Dialog& dialog) {
  ModelessLogic::opened(dialog);
  dialog.setStatusParts(kStatus, kStatusParts);
  sheet_.dialect.fieldDelimiter = fieldDelimiter_;
  ReadImportFile(program_, path_, sheet_.rows, sheet_.dialect.fieldDelimiter);
  fieldDelimiter_ = sheet_.dialect.fieldDelimiter;

  const Raised filling(filling_);
  dialog.setText(kDelimiter, std::string_view(&fieldDelimiter_, fieldDelimiter_ == '\0' ? 0 : 1));
  dialog.setText(kQuote, sheet_.dialect.quote);
  dialog.setText(kQuoteEscape, sheet_.dialect.quoteEscape);
  dialog.setText(kDecimalPoint, sheet_.dialect.decimalPoint);
  buildColumns(dialog);
  fillTable(dialog);
}

void ImportWindow::notified(Dialog& dialog, const ControlEvent& event) {
  switch (event.notice) {
    case Notice::Changed:
      if (!filling_) fieldChanged(dialog, event.control);
      break;
    case Notice::GotFocus:
      program_.view.showHelp(event.control);
      break;
    case Notice::Clicked:
      pressed(dialog, event.control);
      break;
    case Notice::RightClicked:
      if (event.control == kTable) showRowMenu(dialog, event.row != kNoRow);
      break;
    case Notice::HeadingClicked:
      assignColumn(dialog, event.column);
      break;
    case Notice::SelectionChanged:
      selectRow(dialog, event.row);
      break;
    default:
      break;
  }
}

std::string ImportWindow::cellText(ControlId /*list*/, int row, int column) {
  const ImportRow& shown = sheet_.rows.at(static_cast<std::size_t>(row));
  return GetField(sheet_.dialect, shown.text.view(), static_cast<std::size_t>(column));
}

void ImportWindow::fieldChanged(Dialog& dialog, ControlId field) {
  if (field == kRecord) {
    changeRow(dialog);
  } else if (std::find(std::begin(kDialectFields), std::end(kDialectFields), field) != std::end(kDialectFields)) {
    readDialect(dialog);
  }
}

void ImportWindow::pressed(Dialog& dialog, ControlId button) {
  switch (button) {
    case kImport:
      import(dialog);
      break;
    case kUpdate:
      update(dialog);
      break;
    case kSelectAll:
      dialog.selectAllRows(kTable);
      break;
    case kCancel:
      dialog.end(0);
      break;
    case kHelp:
      program_.view.openHelpPane(import_window::kWindow);
      break;
    default:
      break;
  }
}

void ImportWindow::readDialect(Dialog& dialog) {
  ImportDialect& dialect = sheet_.dialect;
  fieldDelimiter_ = dialect.fieldDelimiter = FieldText(dialog, kDelimiter).orEmpty()[0];
  dialect.quote = FieldText(dialog, kQuote).view();
  dialect.quoteEscape = FieldText(dialog, kQuoteEscape).view();
  dialect.decimalPoint = FieldText(dialog, kDecimalPoint).view();
  buildColumns(dialog);
  fillTable(dialog);
}

// What the columns carried is forgotten with them.
void ImportWindow::buildColumns(Dialog& dialog) {
  sheet_.columnField = {};
  const std::string_view longest = longestRow(sheet_.rows);
  std::vector<ListColumn> columns(static_cast<std::size_t>(std::min(mostFields(sheet_), kMostColumns)));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    columns[i] = {kUnassignedHeading, widthFor(GetField(sheet_.dialect, longest, i).size())};
  }
  dialog.setColumns(kTable, columns);
}

void ImportWindow::fillTable(Dialog& dialog) {
  dialog.setRowCount(kTable, static_cast<int>(sheet_.rows.size()));
  showCount(dialog);
}

void ImportWindow::showCount(Dialog& dialog) {
  dialog.setStatusText(kStatus, 0, " " + std::to_string(sheet_.rows.size()));
}

void ImportWindow::assignColumn(Dialog& dialog, int column) {
  const auto clicked = static_cast<std::size_t>(column);
  const Command chosen = program_.screen.popupMenu(ColumnMenu(sheet_.columnField, clicked));
  const ImportFieldNumber number = FieldOfCommand(chosen);
  if (number == kNoImportField && chosen != Command::ColumnClear) return;
  if (window() == nullptr || clicked >= sheet_.columnField.size()) return;
  sheet_.columnField[clicked] = number;
  dialog.setHeading(kTable, column, ColumnHeading(sheet_.columnField, clicked));
}

void ImportWindow::showRowMenu(Dialog& dialog, bool hitRow) {
  const Command chosen = program_.screen.popupMenu(RowMenu(hitRow));
  if (window() == nullptr) return;
  if (chosen == Command::RowsImport) import(dialog);
  if (chosen == Command::RowsUpdate) update(dialog);
  if (chosen == Command::RowsDelete) deleteRows(dialog);
  if (chosen == Command::RowsSelectAll) dialog.selectAllRows(kTable);
}

void ImportWindow::selectRow(Dialog& dialog, int row) {
  if (row == kNoRow || !dialog.isRowSelected(kTable, row)) return;
  selectedRow_ = row;
  const Raised filling(filling_);
  dialog.setText(kRecord, sheet_.rows[static_cast<std::size_t>(row)].text.view());
  dialog.setStatusText(kStatus, 1, cellText(kTable, row, 0));
}

// The row is another one at once, so it can be corrected before it is imported.
void ImportWindow::changeRow(Dialog& dialog) {
  if (selectedRow_ == kNoRow) return;
  Text& row = sheet_.rows[static_cast<std::size_t>(selectedRow_)].text;
  const Text typed = FieldText(dialog, kRecord, kFieldText);
  if (typed.view() == row.view()) return;
  row = typed;
  dialog.repaintRow(kTable, selectedRow_);
}

std::vector<std::size_t> ImportWindow::selectedRows(Dialog& dialog) const {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < sheet_.rows.size(); ++row) {
    if (dialog.isRowSelected(kTable, static_cast<int>(row))) rows.push_back(row);
  }
  return rows;
}

// Rows and selection stay, so a second press imports them again.
void ImportWindow::import(Dialog& dialog) {
  const int count = ImportProducts(program_, sheet_, selectedRows(dialog));
  program_.screen.messageBox(
      {.text = FillMessage(message::kImported, IntToText(count)), .title = message::kImportComplete});
  program_.view.loadForm();
}

void ImportWindow::update(Dialog& dialog) {
  const int count = UpdateProducts(program_, sheet_, selectedRows(dialog));
  program_.screen.messageBox(
      {.text = FillMessage(message::kUpdated, IntToText(count)), .title = message::kUpdateComplete});
  program_.view.loadForm();
}

void ImportWindow::deleteRows(Dialog& dialog) {
  const std::vector<std::size_t> gone = selectedRows(dialog);
  std::size_t row = 0;
  std::erase_if(sheet_.rows,
                [&](const ImportRow& /*each*/) { return std::binary_search(gone.begin(), gone.end(), row++); });
  followSelectedRow(dialog, gone);
  fillTable(dialog);
}

// The row whose text is in the box has another number now, or is gone and its text with it.
void ImportWindow::followSelectedRow(Dialog& dialog, const std::vector<std::size_t>& gone) {
  if (selectedRow_ == kNoRow) return;
  const auto row = static_cast<std::size_t>(selectedRow_);
  const auto before = std::lower_bound(gone.begin(), gone.end(), row);
  if (before == gone.end() || *before != row) {
    selectedRow_ -= static_cast<int>(before - gone.begin());
    return;
  }
  selectedRow_ = kNoRow;
  dialog.setText(kRecord, "");
  dialog.setStatusText(kStatus, 1, "");
}

void OpenImport(Program& program, ImportState& state) {
  const std::optional<std::string> path = program.screen.chooseFile({.folder = program.files.workingFolder(),
                                                                     .title = message::kOpenDataFile,
                                                                     .filter = message::kDataFilter,
                                                                     .extension = {}});
  if (!path) return;
  state.window.close();
  state.window.open(program.screen, program, state.fieldDelimiter, *path);
}

}  // namespace varlo
