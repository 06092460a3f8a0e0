#include "import/import_menus.h"

#include <string>

namespace varlo {
namespace {

// By their numbers, in the order of the menu, which is not that of the numbers.
constexpr ImportFieldNumber kPlainFields[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 11, 10, 14};
constexpr ImportFieldNumber kFirstUserField = 15;
constexpr ImportFieldNumber kFirstUserLabel = 21;
constexpr int kOptions = 6;

Command commandOf(ImportFieldNumber number) {
  return static_cast<Command>(static_cast<int>(Command::ColumnFirstField) + number - 1);
}

MenuEntry entryOf(const ImportColumns& columns, std::size_t column, ImportFieldNumber number) {
  return {.label = std::string(ImportFieldOf(number).label),
          .command = commandOf(number),
          .enabled = column < columns.size() && !IsAssigned(columns, number)};
}

MenuEntry optionMenu(const char* label, const ImportColumns& columns, std::size_t column, ImportFieldNumber first) {
  MenuEntry menu{.label = label};
  for (int i = 0; i < kOptions; ++i) {
    menu.entries.push_back(entryOf(columns, column, static_cast<ImportFieldNumber>(first + i)));
  }
  return menu;
}

}  // namespace

PopupMenu ColumnMenu(const ImportColumns& columns, std::size_t column) {
  PopupMenu menu;
  for (const ImportFieldNumber number : kPlainFields) menu.push_back(entryOf(columns, column, number));
  menu.push_back(MenuSeparator());
  menu.push_back(optionMenu("User Fields", columns, column, kFirstUserField));
  menu.push_back(optionMenu("User Labels", columns, column, kFirstUserLabel));
  menu.push_back(MenuSeparator());
  menu.push_back({.label = "&Clear", .command = Command::ColumnClear});
  return menu;
}

ImportFieldNumber FieldOfCommand(Command command) {
  const int number = static_cast<int>(command) - static_cast<int>(Command::ColumnFirstField) + 1;
  return number >= 1 && number <= kImportFields ? static_cast<ImportFieldNumber>(number) : kNoImportField;
}

PopupMenu RowMenu(bool hitRow) {
  return {{.label = "&Import", .command = Command::RowsImport, .enabled = hitRow},
          {.label = "&Update", .command = Command::RowsUpdate, .enabled = hitRow},
          {.label = "&Delete", .command = Command::RowsDelete, .enabled = hitRow},
          {.label = "Select &All", .command = Command::RowsSelectAll}};
}

}  // namespace varlo
