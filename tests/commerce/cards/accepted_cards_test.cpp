#include "commerce/cards/accepted_cards.h"

#include <gtest/gtest.h>

#include "core/store/record.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

class AcceptedCards : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  CardEntry* visa = addToCatalogue("Visa");
  CardEntry* diners = addToCatalogue("Diners");

  CardEntry* addToCatalogue(const char* name) {
    CardEntry* card = CardEntryInit(nullptr);
    card->name.assign(name);
    RecordAppend(t.config().cardCatalogue, t.config().cardCatalogueTail, card);
    return card;
  }
  std::string accepted() {
    std::string text;
    const CardEntry* before = nullptr;
    for (const CardEntry* card = project.acceptedCards; card != nullptr; card = card->next) {
      EXPECT_EQ(card->prev, before);
      before = card;
      text += std::to_string(card->custom) + ":" + card->name.orEmpty() + " ";
    }
    return text;
  }
};

TEST_F(AcceptedCards, TheOrderIsThatOfAdding) {
  EXPECT_EQ(CardAccept(t.program, diners), 1);
  EXPECT_EQ(CardAccept(t.program, visa), 1);
  EXPECT_EQ(accepted(), "0:Diners 0:Visa ");
  EXPECT_EQ(visa->selected, 1);
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(AcceptedCards, AnAcceptedCatalogueCardIsNotTakenAgain) {
  CardAccept(t.program, visa);
  project.dirty = 0;
  EXPECT_EQ(CardAccept(t.program, visa), 0);
  EXPECT_EQ(CardAccept(t.program, nullptr), 0);
  EXPECT_EQ(accepted(), "0:Visa ");
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(AcceptedCards, ATypedCardWithACatalogueNameLeavesTheCatalogueCardFree) {
  CardAcceptTyped(t.program, "Visa");
  EXPECT_EQ(visa->selected, 0);
  EXPECT_EQ(CardAccept(t.program, visa), 1);
  EXPECT_EQ(accepted(), "1:Visa 0:Visa ");
}

TEST_F(AcceptedCards, RemovingACatalogueCardGivesItBack) {
  CardAccept(t.program, visa);
  CardAccept(t.program, diners);
  project.currentCard = project.acceptedCards;
  EXPECT_EQ(CardRemove(t.program), 1);
  EXPECT_EQ(visa->selected, 0);
  EXPECT_EQ(diners->selected, 1);
  EXPECT_EQ(accepted(), "0:Diners ");
  EXPECT_EQ(project.currentCard, project.acceptedCards);
}

TEST_F(AcceptedCards, RemovingATypedCardLeavesTheCatalogueAsItIs) {
  CardAccept(t.program, visa);
  CardAcceptTyped(t.program, "Visa");
  project.currentCard = project.acceptedCards->next;
  CardRemove(t.program);
  EXPECT_EQ(visa->selected, 1);
  EXPECT_EQ(accepted(), "0:Visa ");
  EXPECT_EQ(project.currentCard, project.acceptedCards);
}

TEST_F(AcceptedCards, ACardThatLeftTheCatalogueIsSimplyRemoved) {
  CardAccept(t.program, visa);
  project.acceptedCards->name.assign("Gone");
  project.currentCard = project.acceptedCards;
  EXPECT_EQ(CardRemove(t.program), 1);
  EXPECT_EQ(accepted(), "");
  EXPECT_EQ(project.currentCard, nullptr);
  EXPECT_EQ(CardRemove(t.program), 0);
}

}  // namespace
}  // namespace varlo
