// Moving payment cards between the catalogue of the installation and those that the store accepts.
#pragma once

#include "core/store/card_entry.h"

namespace varlo {

struct Program;

// Accepts a card of the catalogue: 1 done, 0 for null or a card that is accepted already.
int CardAccept(Program& program, CardEntry* catalogueCard);

// Accepts a card that the user typed in. A name that stands in the catalogue, or is accepted already, is
// taken all the same.
void CardAcceptTyped(Program& program, const char* name);

// Takes the project's current card out of the accepted ones, and gives one of the catalogue back to it.
// The next card, else the previous one, becomes current. 1 done, 0 without a current card.
int CardRemove(Program& program);

}  // namespace varlo
