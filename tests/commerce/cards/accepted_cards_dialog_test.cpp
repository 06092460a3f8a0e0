#include "commerce/cards/accepted_cards_dialog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/cards/accepted_cards.h"
#include "core/store/record.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using namespace cards;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CardWindow : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void SetUp() override {
    for (const char* name : {"Visa", "Diners", "JCB"}) {
      CardEntry* card = CardEntryInit(nullptr);
      card->name.assign(name);
      RecordAppend(t.config().cardCatalogue, t.config().cardCatalogueTail, card);
    }
    window.open();
  }
  std::vector<std::string> rows(ControlId list) {
    std::vector<std::string> rows;
    for (int row = 0; row < window.rowCount(list); ++row) rows.push_back(window.cell(list, row, 0));
    return rows;
  }
  std::vector<std::string> known() { return rows(kKnown); }
  std::vector<std::string> accepted() { return rows(kAccepted); }
  void accept(int row) {
    window.pickRow(kKnown, row);
    window.press(kAdd);
  }

  AcceptedCardsDialog logic{t.program};
  FakeWindow window{logic};
};

TEST_F(CardWindow, Opens) {
  EXPECT_EQ(window.describe(),
            "[Accepted Credit Cards]\n"
            "text 'Select all credit cards which your store will be accepting for payment.'\n"
            "list 'Credit Cards:' 3 rows\n"
            "button '>>' disabled\n"
            "button '<<' disabled\n"
            "list 'Accepted Cards:' 0 rows\n"
            "O&ther: edit \"\"\n"
            "button '>>' disabled\n"
            "button '&OK' default\n"
            "button '&Help'\n");
  EXPECT_THAT(t.view.calls, Contains("showHelp " + std::to_string(kWindow)));
}

TEST_F(CardWindow, ACardMovesToTheRightAndTheNextIsSelected) {
  accept(1);
  EXPECT_THAT(known(), ElementsAre("Visa", "JCB"));
  EXPECT_THAT(accepted(), ElementsAre("Diners"));
  EXPECT_THAT(window.selectedRows(kKnown), ElementsAre(1));
  EXPECT_TRUE(window.isEnabled(kAdd));
  EXPECT_EQ(project.dirty, 1);
  window.press(kAdd);
  EXPECT_THAT(accepted(), ElementsAre("Diners", "JCB"));
  EXPECT_THAT(window.selectedRows(kKnown), IsEmpty()) << "there is none behind the last";
  EXPECT_FALSE(window.isEnabled(kAdd));
}

TEST_F(CardWindow, ASelectionInOneListTakesTheButtonOfTheOtherAway) {
  accept(0);
  window.pickRow(kAccepted, 0);
  EXPECT_TRUE(window.isEnabled(kRemove));
  EXPECT_FALSE(window.isEnabled(kAdd));
  window.pickRow(kKnown, 1);
  EXPECT_TRUE(window.isEnabled(kAdd));
  EXPECT_FALSE(window.isEnabled(kRemove));
  window.pickRow(kKnown, kNoRow);
  EXPECT_FALSE(window.isEnabled(kAdd));
}

TEST_F(CardWindow, ARemovedCardComesBackInItsOldPlaceAndItsNeighbourBecomesCurrent) {
  for (int i = 0; i < 3; ++i) accept(0);
  window.pickRow(kAccepted, 1);
  window.press(kRemove);
  EXPECT_THAT(known(), ElementsAre("Diners"));
  EXPECT_THAT(accepted(), ElementsAre("Visa", "JCB"));
  EXPECT_THAT(window.selectedRows(kAccepted), ElementsAre(1));
  EXPECT_EQ(project.currentCard->name.view(), "JCB");
  window.press(kRemove);
  EXPECT_EQ(project.currentCard->name.view(), "Visa") << "the previous one";
  window.press(kRemove);
  EXPECT_THAT(known(), ElementsAre("Visa", "Diners", "JCB"));
  EXPECT_FALSE(window.isEnabled(kRemove));
}

TEST_F(CardWindow, RemovingATypedInCardDoesNotChangeTheLeftList) {
  window.type(kOther, "Visa");
  window.press(kAddOther);
  window.pickRow(kKnown, 2);
  window.pickRow(kAccepted, 0);
  window.press(kRemove);
  EXPECT_THAT(known(), ElementsAre("Visa", "Diners", "JCB"));
  EXPECT_THAT(window.selectedRows(kKnown), ElementsAre(2)) << "it was not filled anew";
}

TEST_F(CardWindow, ATypedCardMayHaveTheNameOfAnotherAndBeThereTwice) {
  EXPECT_FALSE(window.isEnabled(kAddOther));
  window.type(kOther, "Visa");
  EXPECT_TRUE(window.isEnabled(kAddOther));
  window.press(kAddOther);
  window.press(kAddOther);
  EXPECT_EQ(window.text(kOther), "Visa") << "the text stays in the field";
  accept(0);
  EXPECT_THAT(accepted(), ElementsAre("Visa", "Visa", "Visa"));
  EXPECT_EQ(project.acceptedCards->custom, 1);
  EXPECT_EQ(project.acceptedCards->next->next->custom, 0);
  window.type(kOther, "");
  EXPECT_FALSE(window.isEnabled(kAddOther));
}

TEST_F(CardWindow, NamesOfEveryLengthAreShownWhole) {
  for (const std::size_t size : {20U, 300U}) {
    const std::string name(size, 'c');
    window.type(kOther, name);
    window.press(kAddOther);
    EXPECT_EQ(accepted().back(), name);
  }
}

TEST_F(CardWindow, ACardWhoseNameHasLeftTheCatalogueIsRemovedAndNothingComesBack) {
  accept(0);
  t.config().cardCatalogue->name.assign("Other");
  window.pickRow(kAccepted, 0);
  window.press(kRemove);
  EXPECT_THAT(accepted(), IsEmpty());
  EXPECT_THAT(known(), ElementsAre("Diners", "JCB"));
}

TEST_F(CardWindow, OkEndsAndHelpShowsItsTopic) {
  window.press(kHelp);
  EXPECT_THAT(t.view.calls, Contains("openHelpPane " + std::to_string(kWindow)));
  EXPECT_TRUE(window.isOpen());
  window.pressReturn();
  EXPECT_FALSE(window.isOpen());
}

TEST_F(CardWindow, AnEmptyCatalogueGivesAnEmptyLeftList) {
  CardEntryListFree(t.config().cardCatalogue);
  t.config().cardCatalogue = t.config().cardCatalogueTail = nullptr;
  AcceptedCardsDialog dialog(t.program);
  FakeWindow empty(dialog);
  empty.open();
  EXPECT_EQ(empty.rowCount(kKnown), 0);
}

TEST(ShowAcceptedCards, HoweverItIsClosedTheCardListIsShownAnew) {
  TestProgram t;
  ShowAcceptedCards(t.program);
  EXPECT_THAT(t.screen.dialogs, ElementsAre(cards::kWindow));
  EXPECT_THAT(t.view.calls, ElementsAre("loadCardList"));
}

}  // namespace
}  // namespace varlo
