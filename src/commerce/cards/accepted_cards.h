// Moving payment cards between the catalogue of the installation and those that the store accepts.
#pragma once

#include <vector>

#include "core/store/card_entry.h"

namespace varlo {

struct Program;
struct StoreProject;

// The cards of the catalogue that the store does not accept, in its order; and those that it accepts, in the order of
// adding.
[[nodiscard]] std::vector<CardEntry*> OfferedCards(const AppConfig& config);
[[nodiscard]] std::vector<CardEntry*> AcceptedCards(const StoreProject& project);

// Accepts a card of the catalogue: 1 done, 0 for null or a card that is accepted already.
int CardAccept(Program& program, CardEntry* catalogueCard);

// Accepts a card that the user typed in. A name that stands in the catalogue, or is accepted already, is
// taken all the same.
void CardAcceptTyped(Program& program, const char* name);

// Takes the project's current card out of the accepted ones, and gives one of the catalogue back to it.
// The next card, else the previous one, becomes current. 1 done, 0 without a current card.
int CardRemove(Program& program);

}  // namespace varlo
