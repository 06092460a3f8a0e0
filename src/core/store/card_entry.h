// CardEntry: a payment card, in the catalogue of the installation or among those a store accepts.
#pragma once

#include <cstdint>

#include "core/text/text.h"

namespace varlo {

struct AppConfig;
struct StoreProject;

struct CardEntry {
  CardEntry* next = nullptr;
  CardEntry* prev = nullptr;
  Text name;
  std::int32_t listItem = 0;
  std::int32_t custom = 0;    // the number in CC=: 1 typed in by the user, 0 from the catalogue
  std::int32_t selected = 0;  // in the catalogue: the open project accepts the card
};

// A zeroed card: a new one for null, else the given one with its name released.
CardEntry* CardEntryInit(CardEntry* card);

// Releases the list from `head` along next.
void CardEntryListFree(CardEntry* head);

// Sets `selected` of the catalogue's card with exactly this name to `flag`; 1 when there is one, else 0.
int CardCatalogueMark(AppConfig& config, const char* name, int flag);

}  // namespace varlo
