#include "import/import_menus.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace varlo {
namespace {

using testing::ElementsAre;

// A menu as a person reads it: a line is "-", what is grey has a "*", a submenu stands in brackets.
std::string textOf(const PopupMenu& menu) {
  std::string text;
  for (const MenuEntry& entry : menu) {
    text += text.empty() ? "" : " ";
    text += IsSeparator(entry) ? "-" : entry.label;
    if (!entry.enabled) text += "*";
    if (!entry.entries.empty()) text += "(" + textOf(entry.entries) + ")";
  }
  return text;
}

Command commandOf(const PopupMenu& menu, std::string_view label) {
  for (const MenuEntry& entry : menu) {
    if (entry.label == label) return entry.command;
    const Command below = commandOf(entry.entries, label);
    if (below != Command::None) return below;
  }
  return Command::None;
}

TEST(ImportMenus, AHeadingOffersAllFieldsInTheirGroups) {
  EXPECT_EQ(
      textOf(ColumnMenu({}, 0)),
      "Title Page Title Filename Product Code Meta Keywords Meta Description Image URL Image Link Template Cost "
      "Tax Weight Freight Description - "
      "User Fields(Field 1 Field 2 Field 3 Field 4 Field 5 Field 6) "
      "User Labels(Label 1 Label 2 Label 3 Label 4 Label 5 Label 6) - &Clear");
}

TEST(ImportMenus, AFieldOnAnyColumnIsGrey) {
  ImportColumns columns{};
  columns[3] = FindImportField("cost");
  columns[0] = FindImportField("field6");
  columns[25] = FindImportField("label1");
  EXPECT_EQ(
      textOf(ColumnMenu(columns, 3)),
      "Title Page Title Filename Product Code Meta Keywords Meta Description Image URL Image Link Template Cost* "
      "Tax Weight Freight Description - "
      "User Fields(Field 1 Field 2 Field 3 Field 4 Field 5 Field 6*) "
      "User Labels(Label 1* Label 2 Label 3 Label 4 Label 5 Label 6) - &Clear");
}

TEST(ImportMenus, BehindTheTwentySixthColumnAllFieldsAreGrey) {
  const PopupMenu last = ColumnMenu({}, 25);
  EXPECT_TRUE(last.front().enabled);
  const PopupMenu behind = ColumnMenu({}, 26);
  EXPECT_FALSE(behind.front().enabled);
  EXPECT_EQ(textOf(behind).find("Field 1 "), std::string::npos);
  EXPECT_EQ(behind.back().label, "&Clear");
  EXPECT_TRUE(behind.back().enabled);
}

TEST(ImportMenus, EachEntryStandsForItsField) {
  const PopupMenu menu = ColumnMenu({}, 0);
  for (ImportFieldNumber number = 1; number <= kImportFields; ++number) {
    EXPECT_EQ(FieldOfCommand(commandOf(menu, ImportFieldOf(number).label)), number);
  }
}

TEST(ImportMenus, OtherCommandsStandForNoField) {
  for (const Command command : {Command::None, Command::Import, Command::ColumnClear, Command::RowsImport}) {
    EXPECT_EQ(FieldOfCommand(command), kNoImportField);
  }
}

TEST(ImportMenus, WithoutARowOnlySelectAllCanBeChosen) {
  EXPECT_EQ(textOf(RowMenu(true)), "&Import &Update &Delete Select &All");
  EXPECT_EQ(textOf(RowMenu(false)), "&Import* &Update* &Delete* Select &All");
}

}  // namespace
}  // namespace varlo
