#include "import/import_window.h"

#include <gmock/gmock.h>

#include "import/import_menus.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using namespace import_window;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPath = "C:\\lists\\list.csv";

class ImportWindowTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  StoreNode* home = AddCategory(project, "Home");
  ImportState state;
  std::unique_ptr<FakeWindow> shown;

  void SetUp() override {
    Select(project, home);
    t.screen.onOpenDialog = [this](const std::shared_ptr<DialogLogic>& logic) {
      shown = std::make_unique<FakeWindow>(logic);
      shown->open();
      return shown.get();
    };
  }

  // The owner chooses a file with this content.
  FakeWindow& open(const std::string& content) {
    t.files.put(kPath, content);
    t.screen.files.emplace_back(kPath);
    OpenImport(t.program, state);
    return *shown;
  }

  void assign(int column, const char* field) {
    t.screen.chosenFromMenus.push_back(commandOf(field));
    shown->clickHeading(kTable, column);
  }
  static Command commandOf(const char* field) {
    return static_cast<Command>(static_cast<int>(Command::ColumnFirstField) + FindImportField(field) - 1);
  }
  void chooseForRow(int row, Command command) {
    t.screen.chosenFromMenus.push_back(command);
    shown->rightClickRow(kTable, row);
  }
  std::vector<std::string> cells(int row) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < shown->columns(kTable).size(); ++i) {
      texts.push_back(shown->cell(kTable, row, static_cast<int>(i)));
    }
    return texts;
  }
  std::string status(std::size_t part) { return shown->statusTexts(kStatus).at(part); }
};

// Opening.

TEST_F(ImportWindowTest, TheChooserStartsInTheWorkingFolderAndOffersAllFiles) {
  OpenImport(t.program, state);
  ASSERT_EQ(t.screen.fileRequests.size(), 1U);
  const FileChooserRequest& request = t.screen.fileRequests[0];
  EXPECT_EQ(request.title, "Open Data File");
  EXPECT_EQ(request.filter, "File (*.*)$*.*$$");
  EXPECT_EQ(request.folder, t.files.workingFolder());
}

TEST_F(ImportWindowTest, WithoutAFileNothingOpens) {
  OpenImport(t.program, state);
  EXPECT_THAT(t.screen.dialogs, IsEmpty());
  EXPECT_FALSE(state.window.isOpen());
}

TEST_F(ImportWindowTest, TheWindowShowsTheFileAsATable) {
  FakeWindow& window = open("a,b\nc,d,e\n\"f,g\"\n");
  EXPECT_EQ(window.title(), "Varlo PRO - Data Import");
  EXPECT_EQ(window.rowCount(kTable), 3);
  EXPECT_THAT(window.headings(kTable), ElementsAre("???", "???", "???"));
  EXPECT_THAT(cells(0), ElementsAre("a", "b", ""));
  EXPECT_THAT(cells(1), ElementsAre("c", "d", "e"));
  EXPECT_THAT(cells(2), ElementsAre("f,g", "", ""));
  EXPECT_EQ(status(0), " 3");
}

TEST_F(ImportWindowTest, TheFieldsShowTheDialectThatTheFileIsReadWith) {
  FakeWindow& window = open("a;b;c\n");
  EXPECT_EQ(window.text(kDelimiter), ";");
  EXPECT_EQ(window.text(kQuote), "\"");
  EXPECT_EQ(window.text(kQuoteEscape), "\"");
  EXPECT_EQ(window.text(kDecimalPoint), ".");
}

TEST_F(ImportWindowTest, AllControlsAreThere) {
  EXPECT_EQ(open("a,b\n").describe(),
            "[Varlo PRO - Data Import]\n"
            "&Field Delimiter: edit \",\"\n"
            "&Quote Character: edit \"\"\"\n"
            "Quote &Escape Character: edit \"\"\"\n"
            "&Decimal Point: edit \".\"\n"
            "list 'Records' 1 rows\n"
            "lines \"\"\n"
            "button '&Import'\n"
            "button '&Update'\n"
            "button 'Select &All'\n"
            "button '&Cancel'\n"
            "button '&Help'\n"
            "status\n");
}

TEST_F(ImportWindowTest, AFileThatCannotBeReadGivesAnEmptyTableAndNoMessage) {
  t.screen.files.emplace_back("C:\\none.csv");
  OpenImport(t.program, state);
  EXPECT_EQ(shown->rowCount(kTable), 0);
  EXPECT_THAT(shown->columns(kTable), IsEmpty());
  EXPECT_EQ(status(0), " 0");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(ImportWindowTest, ColumnsOfLongerFieldsAreWider) {
  FakeWindow& window = open("a,some longer text,b\nc," + std::string(500, 'x') + ",d\n");
  const std::vector<ListColumn>& columns = window.columns(kTable);
  EXPECT_EQ(columns[0].width, columns[2].width);
  EXPECT_GT(columns[1].width, 3 * columns[0].width);
  EXPECT_LT(columns[1].width, 500);
}

TEST_F(ImportWindowTest, ManyThousandColumnsAreNotShown) {
  FakeWindow& window = open(std::string(19000, ',') + "\n");
  EXPECT_EQ(window.columns(kTable).size(), 1000U);
}

TEST_F(ImportWindowTest, AnotherFileTakesThePlaceOfTheFirst) {
  open("a,b\n");
  FakeWindow& second = open("c;d;e\nf\n");
  EXPECT_EQ(second.rowCount(kTable), 2);
  EXPECT_EQ(state.window.window(), &second);
}

TEST_F(ImportWindowTest, TheDelimiterOutlivesTheWindowAndTheOtherTextsDoNot) {
  FakeWindow& first = open("plain\n");
  first.type(kDelimiter, "#");
  first.type(kQuote, "^");
  first.close();
  FakeWindow& second = open("a#b\n");
  EXPECT_EQ(second.text(kDelimiter), "#");
  EXPECT_EQ(second.text(kQuote), "\"");
  EXPECT_THAT(cells(0), ElementsAre("a", "b"));
}

TEST_F(ImportWindowTest, NoDelimiterAtAllOutlivesTheWindowToo) {
  open("plain\n").type(kDelimiter, "");
  EXPECT_EQ(open("a b\n").text(kDelimiter), "");
}

TEST_F(ImportWindowTest, CancelAndTheCloseBoxCloseTheWindow) {
  open("a\n").press(kCancel);
  EXPECT_FALSE(shown->isOpen());
  open("a\n").close();
  EXPECT_FALSE(shown->isOpen());
}

TEST_F(ImportWindowTest, HelpOpensThePaneOnTheWindowsTopic) {
  open("a\n").press(kHelp);
  EXPECT_EQ(t.view.calls.back(), "openHelpPane " + std::to_string(kWindow));
}

TEST_F(ImportWindowTest, EachFieldHasItsHelp) {
  FakeWindow& window = open("a\n");
  for (const ControlId field : {kDelimiter, kQuote, kQuoteEscape, kDecimalPoint, kRecord}) {
    window.enter(field);
    EXPECT_EQ(t.view.calls.back(), "showHelp " + std::to_string(field));
  }
}

// The dialect.

TEST_F(ImportWindowTest, AChangeOfTheDialectIsSeenAtOnce) {
  FakeWindow& window = open("a,b;^c,d^\n");
  window.type(kDelimiter, ";");
  EXPECT_THAT(cells(0), ElementsAre("a,b", "^c,d^"));
  window.type(kDelimiter, ",");
  EXPECT_THAT(cells(0), ElementsAre("a", "b;^c", "d^"));
  window.type(kQuote, "^");
  EXPECT_THAT(cells(0), ElementsAre("a", "b;^c,d"));
}

TEST_F(ImportWindowTest, ChangingTheDelimiterAfterAssigningColumnsClearsAllHeadings) {
  FakeWindow& window = open("a,b\n");
  assign(0, "title");
  assign(1, "cost");
  EXPECT_THAT(window.headings(kTable), ElementsAre("Title", "Cost"));
  window.type(kDelimiter, ";");
  EXPECT_THAT(window.headings(kTable), ElementsAre("???"));
  window.type(kDelimiter, ",");
  EXPECT_THAT(window.headings(kTable), ElementsAre("???", "???"));
  window.pickRow(kTable, 0);
  window.press(kImport);
  EXPECT_TRUE(project.currentNode->title.isNull());
}

TEST_F(ImportWindowTest, EachOfTheFourFieldsClearsTheColumns) {
  for (const ControlId field : {kDelimiter, kQuote, kQuoteEscape, kDecimalPoint}) {
    FakeWindow& window = open("a,b\n");
    assign(0, "title");
    window.type(field, "x");
    EXPECT_EQ(window.headings(kTable)[0], "???") << field;
    window.close();
    state.fieldDelimiter = ',';
  }
}

TEST_F(ImportWindowTest, EveryFieldCanBeEmptied) {
  FakeWindow& window = open("\"a\",b\n");
  window.type(kQuote, "");
  EXPECT_THAT(cells(0), ElementsAre("\"a\"", "b"));
  window.type(kDelimiter, "");
  EXPECT_THAT(cells(0), ElementsAre("\"a\",b"));
}

TEST_F(ImportWindowTest, OfALongerDelimiterTheFirstByteCounts) {
  FakeWindow& window = open("a,b;c\n");
  window.type(kDelimiter, ";,");
  EXPECT_THAT(cells(0), ElementsAre("a,b", "c"));
}

TEST_F(ImportWindowTest, ARefillOfTheTableSelectsNothing) {
  FakeWindow& window = open("a,b\nc,d\n");
  window.pickRow(kTable, 1);
  window.type(kDecimalPoint, ",");
  EXPECT_THAT(window.selectedRows(kTable), IsEmpty());
}

// Columns.

TEST_F(ImportWindowTest, AHeadingShowsTheFieldThatWasChosen) {
  FakeWindow& window = open("a,b,c\n");
  assign(1, "code");
  EXPECT_THAT(window.headings(kTable), ElementsAre("???", "Product Code", "???"));
}

TEST_F(ImportWindowTest, ClearTakesTheFieldFromTheColumn) {
  FakeWindow& window = open("a,b\n");
  assign(0, "title");
  t.screen.chosenFromMenus.push_back(Command::ColumnClear);
  window.clickHeading(kTable, 0);
  EXPECT_EQ(window.headings(kTable)[0], "???");
  window.clickHeading(kTable, 1);
  EXPECT_TRUE(t.screen.menus.back().front().enabled);
}

TEST_F(ImportWindowTest, AFieldOnAColumnIsGreyInTheNextMenu) {
  FakeWindow& window = open("a,b\n");
  assign(0, "title");
  window.clickHeading(kTable, 1);
  EXPECT_FALSE(t.screen.menus.back().front().enabled);
}

TEST_F(ImportWindowTest, AnotherFieldOnTheSameColumnFreesTheFirst) {
  FakeWindow& window = open("a,b\n");
  assign(0, "title");
  assign(0, "cost");
  EXPECT_EQ(window.headings(kTable)[0], "Cost");
  window.clickHeading(kTable, 1);
  EXPECT_TRUE(t.screen.menus.back().front().enabled);
}

TEST_F(ImportWindowTest, AMenuThatIsLeftChangesNothing) {
  FakeWindow& window = open("a,b\n");
  assign(0, "title");
  window.clickHeading(kTable, 0);
  EXPECT_EQ(window.headings(kTable)[0], "Title");
}

TEST_F(ImportWindowTest, ColumnsBehindTheTwentySixthTakeNoEffect) {
  FakeWindow& window = open(std::string(27, ',') + "last\n");
  assign(27, "title");
  EXPECT_FALSE(t.screen.menus.back().front().enabled);
  EXPECT_EQ(window.headings(kTable)[27], "???");
  window.pickRow(kTable, 0);
  window.press(kImport);
  EXPECT_TRUE(project.currentNode->title.isNull());
}

// Rows.

TEST_F(ImportWindowTest, ASelectedRowIsShownInTheBoxAndItsFirstFieldInTheStatusBar) {
  FakeWindow& window = open("\"a, b\",c\nd,e\n");
  window.pickRow(kTable, 0);
  EXPECT_EQ(window.text(kRecord), "\"a, b\",c");
  EXPECT_EQ(status(1), "a, b");
  window.goToRow(kTable, 1);
  EXPECT_EQ(window.text(kRecord), "d,e");
  EXPECT_EQ(status(1), "d");
}

TEST_F(ImportWindowTest, ARowThatIsDeselectedStaysInTheBox) {
  FakeWindow& window = open("a\nb\n");
  window.pickRow(kTable, 1);
  window.pickRow(kTable, kNoRow);
  EXPECT_EQ(window.text(kRecord), "b");
}

TEST_F(ImportWindowTest, WhatIsTypedInTheBoxIsTheRowAtOnce) {
  FakeWindow& window = open("a,b\nc,d\n");
  window.pickRow(kTable, 1);
  window.type(kRecord, "e,f");
  EXPECT_THAT(cells(1), ElementsAre("e", "f"));
  EXPECT_GT(window.rowRepaints(kTable, 1), 0);
  EXPECT_THAT(cells(0), ElementsAre("a", "b"));
}

TEST_F(ImportWindowTest, ACorrectedRowIsImportedAsItIsThen) {
  FakeWindow& window = open("a,b\n");
  assign(0, "title");
  window.pickRow(kTable, 0);
  window.type(kRecord, "Ball,b");
  window.press(kImport);
  EXPECT_STREQ(project.currentNode->title.get(), "Ball");
}

TEST_F(ImportWindowTest, ShowingARowDoesNotPaintItAnew) {
  FakeWindow& window = open("a,b\nc,d\n");
  window.pickRow(kTable, 1);
  EXPECT_EQ(window.rowRepaints(kTable, 1), 0);
}

TEST_F(ImportWindowTest, WithoutASelectedRowTheBoxChangesNothing) {
  FakeWindow& window = open("a,b\n");
  window.type(kRecord, "x");
  EXPECT_THAT(cells(0), ElementsAre("a", "b"));
}

TEST_F(ImportWindowTest, RowsOfAllLengthsGoThroughTheBox) {
  for (const std::size_t length : {20U, 100U, 300U, 5000U, 19990U}) {
    const std::string row(length, 'r');
    FakeWindow& window = open(row + "\n");
    window.pickRow(kTable, 0);
    EXPECT_EQ(window.text(kRecord), row);
    window.type(kRecord, row.substr(1) + "s");
    EXPECT_EQ(window.cell(kTable, 0, 0), row.substr(1) + "s");
    window.close();
  }
}

TEST_F(ImportWindowTest, ALongerTextIsCutAtTheEndOfAField) {
  FakeWindow& window = open("a\n");
  window.pickRow(kTable, 0);
  window.type(kRecord, std::string(20500, 'r'));
  EXPECT_EQ(window.cell(kTable, 0, 0), std::string(19999, 'r'));
}

TEST_F(ImportWindowTest, SelectAllSelectsEveryRow) {
  FakeWindow& window = open("a\nb\nc\n");
  window.press(kSelectAll);
  EXPECT_THAT(window.selectedRows(kTable), ElementsAre(0, 1, 2));
  window.pickRow(kTable, 1);
  chooseForRow(1, Command::RowsSelectAll);
  EXPECT_THAT(window.selectedRows(kTable), ElementsAre(0, 1, 2));
}

TEST_F(ImportWindowTest, TheMenuOfTheRowsIsGreyWhereNoneWasHit) {
  FakeWindow& window = open("a\n");
  window.rightClickRow(kTable, kNoRow);
  EXPECT_FALSE(t.screen.menus.back()[0].enabled);
  window.rightClickRow(kTable, 0);
  EXPECT_TRUE(t.screen.menus.back()[0].enabled);
}

TEST_F(ImportWindowTest, DeleteRemovesAllSelectedRowsAndTellsTheCount) {
  FakeWindow& window = open("a\nb\nc\nd\ne\n");
  window.pickRows(kTable, {0, 2, 4});
  chooseForRow(2, Command::RowsDelete);
  EXPECT_EQ(window.rowCount(kTable), 2);
  EXPECT_EQ(window.cell(kTable, 0, 0), "b");
  EXPECT_EQ(window.cell(kTable, 1, 0), "d");
  EXPECT_EQ(status(0), " 2");
  EXPECT_THAT(window.selectedRows(kTable), IsEmpty());
}

TEST_F(ImportWindowTest, TheTextOfADeletedRowLeavesTheBoxAndTheStatusBar) {
  FakeWindow& window = open("a\nb\nc\n");
  window.pickRows(kTable, {0, 1});
  EXPECT_EQ(window.text(kRecord), "b");
  chooseForRow(0, Command::RowsDelete);
  EXPECT_EQ(window.text(kRecord), "");
  EXPECT_EQ(status(1), "");
  window.type(kRecord, "x");
  EXPECT_EQ(window.cell(kTable, 0, 0), "c");
}

TEST_F(ImportWindowTest, AllRowsCanBeDeleted) {
  FakeWindow& window = open("a,b\nc\n");
  window.press(kSelectAll);
  chooseForRow(0, Command::RowsDelete);
  EXPECT_EQ(window.rowCount(kTable), 0);
  EXPECT_EQ(status(0), " 0");
  window.type(kDelimiter, ";");
  EXPECT_THAT(window.columns(kTable), IsEmpty());
  window.press(kImport);
  EXPECT_EQ(t.screen.boxes.back().text, "0 record(s) have been imported.");
}

TEST_F(ImportWindowTest, TheDeleteKeyHasNoEffect) {
  FakeWindow& window = open("a\nb\n");
  window.pickRow(kTable, 0);
  window.pressKey(kTable, Key::Delete);
  EXPECT_EQ(window.rowCount(kTable), 2);
}

// Import and update.

TEST_F(ImportWindowTest, ImportMakesProductsOfTheSelectedRowsInTableOrder) {
  FakeWindow& window = open("Ball\nCar\nDoll\n");
  assign(0, "title");
  window.pickRows(kTable, {2, 0});
  window.press(kImport);
  EXPECT_EQ(TreeText(project), "Home(Ball,Doll)");
  const ShownBox box{"2 record(s) have been imported.", "Import Complete"};
  EXPECT_THAT(t.screen.boxes, ElementsAre(box));
  EXPECT_EQ(t.view.calls.back(), "loadForm");
}

TEST_F(ImportWindowTest, TheFormIsLoadedBehindTheMessage) {
  FakeWindow& window = open("Ball\n");
  window.pickRow(kTable, 0);
  window.press(kImport);
  const auto calls = t.view.calls.size();
  window.press(kUpdate);
  EXPECT_EQ(t.view.calls.size(), calls + 1);
  EXPECT_EQ(t.view.calls.back(), "loadForm");
}

TEST_F(ImportWindowTest, ASecondPressImportsTheRowsAgain) {
  FakeWindow& window = open("Ball\n");
  assign(0, "title");
  window.pickRow(kTable, 0);
  window.press(kImport);
  EXPECT_THAT(window.selectedRows(kTable), ElementsAre(0));
  window.press(kImport);
  EXPECT_EQ(TreeText(project), "Home(Ball,Ball)");
}

TEST_F(ImportWindowTest, EachPressActsOnTheSelectionOfThatMoment) {
  StoreNode* toys = AddCategory(project, "Toys", home);
  FakeWindow& window = open("Ball\n");
  assign(0, "title");
  window.pickRow(kTable, 0);
  window.press(kImport);
  Select(project, toys);
  window.press(kImport);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball),Ball)");
}

TEST_F(ImportWindowTest, WithNothingCurrentNoneAreImported) {
  Select(project, nullptr);
  FakeWindow& window = open("Ball\n");
  window.press(kSelectAll);
  window.press(kImport);
  EXPECT_EQ(t.screen.boxes.back().text, "0 record(s) have been imported.");
  window.press(kUpdate);
  EXPECT_EQ(t.screen.boxes.back().text, "0 record(s) have been updated.");
  EXPECT_EQ(t.screen.boxes.size(), 2U);
}

TEST_F(ImportWindowTest, WithoutASelectionNoneAreImported) {
  open("Ball\n").press(kImport);
  EXPECT_EQ(t.screen.boxes.back().text, "0 record(s) have been imported.");
  EXPECT_EQ(TreeText(project), "Home");
}

TEST_F(ImportWindowTest, UpdateChangesTheProductsWithTheCodesOfTheRows) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  ball->productCode.assign("B1");
  FakeWindow& window = open("B1,5.50\nX,7\n");
  assign(0, "code");
  assign(1, "cost");
  window.press(kSelectAll);
  window.press(kUpdate);
  EXPECT_STREQ(ball->cost.get(), "5.50");
  const ShownBox box{"1 record(s) have been updated.", "Update Complete"};
  EXPECT_THAT(t.screen.boxes, ElementsAre(box));
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(ImportWindowTest, WithoutAColumnOfCodesTheErrorComesForEachRowAndThenTheCount) {
  FakeWindow& window = open("a\nb\n");
  window.press(kSelectAll);
  window.press(kUpdate);
  const ShownBox error{"An update operation requires a Product Code field to be defined.", "Error"};
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(error, error, ShownBox{"0 record(s) have been updated.", "Update Complete"}));
}

TEST_F(ImportWindowTest, TheMenuOfTheRowsDoesWhatTheButtonsDo) {
  AddProduct(project, "Old", home)->productCode.assign("B1");
  open("B1,Ball\n");
  assign(0, "code");
  assign(1, "title");
  chooseForRow(0, Command::RowsUpdate);
  EXPECT_EQ(TreeText(project), "Home(Ball)");
  chooseForRow(0, Command::RowsImport);
  EXPECT_EQ(TreeText(project), "Home(Ball,Ball)");
}

TEST_F(ImportWindowTest, TheDecimalPointOfTheFieldIsTheOneOfTheImport) {
  FakeWindow& window = open("1,50;x\n");
  window.type(kDecimalPoint, ",");
  window.type(kDelimiter, ";");
  assign(0, "cost");
  window.pickRow(kTable, 0);
  window.press(kImport);
  EXPECT_STREQ(project.currentNode->cost.get(), "1.50");
}

// What happens while a box or a menu is open.

TEST_F(ImportWindowTest, TheWindowMayCloseWhileAMenuIsOpen) {
  open("a,b\n");
  Command chosen = commandOf("title");
  t.screen.onMenu = [this, &chosen](const PopupMenu&) {
    shown->end(0);
    return chosen;
  };
  shown->clickHeading(kTable, 0);
  EXPECT_EQ(shown->headings(kTable)[0], "???");
  open("a\n");
  chosen = Command::RowsImport;
  shown->rightClickRow(kTable, 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_EQ(TreeText(project), "Home");
}

}  // namespace
}  // namespace varlo
