#include "commerce/cards/accepted_cards.h"

#include "core/program/program.h"
#include "core/store/record.h"

namespace varlo {
namespace {

void append(StoreProject& project, const Text& name, int custom) {
  CardEntry* card = CardEntryInit(nullptr);
  card->name = name;
  card->custom = custom;
  CardEntry* last = RecordLast(project.acceptedCards);
  RecordAppend(project.acceptedCards, last, card);
}

void unlink(StoreProject& project, const CardEntry& card) {
  (card.prev == nullptr ? project.acceptedCards : card.prev->next) = card.next;
  if (card.next != nullptr) card.next->prev = card.prev;
}

}  // namespace

std::vector<CardEntry*> OfferedCards(const AppConfig& config) {
  std::vector<CardEntry*> offered;
  for (CardEntry* card = config.cardCatalogue; card != nullptr; card = card->next) {
    if (card->selected == 0) offered.push_back(card);
  }
  return offered;
}

std::vector<CardEntry*> AcceptedCards(const StoreProject& project) {
  std::vector<CardEntry*> accepted;
  for (CardEntry* card = project.acceptedCards; card != nullptr; card = card->next) accepted.push_back(card);
  return accepted;
}

int CardAccept(Program& program, CardEntry* catalogueCard) {
  if (catalogueCard == nullptr || catalogueCard->selected != 0) return 0;
  append(program.project, catalogueCard->name, 0);
  catalogueCard->selected = 1;
  SetDirty(program, 1);
  return 1;
}

void CardAcceptTyped(Program& program, const char* name) {
  append(program.project, Text(name), 1);
  SetDirty(program, 1);
}

int CardRemove(Program& program) {
  StoreProject& project = program.project;
  CardEntry* card = project.currentCard;
  if (card == nullptr) return 0;
  if (card->custom == 0) CardCatalogueMark(program.config, card->name.get(), 0);
  project.currentCard = card->next != nullptr ? card->next : card->prev;
  unlink(project, *card);
  delete card;
  program.view.loadCardList();  // an open Order Form tab must not show what is gone
  SetDirty(program, 1);
  return 1;
}

}  // namespace varlo
