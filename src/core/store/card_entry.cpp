#include "core/store/card_entry.h"

#include "core/store/app_config.h"
#include "core/store/record.h"

namespace varlo {

CardEntry* CardEntryInit(CardEntry* card) { return RecordInit(card); }

void CardEntryListFree(CardEntry* head) { RecordListFree(head); }

int CardCatalogueMark(AppConfig& config, const char* name, int flag) {
  if (name == nullptr) return 0;
  for (CardEntry* card = config.cardCatalogue; card != nullptr; card = card->next) {
    if (card->name.view() != name) continue;
    card->selected = flag;
    return 1;
  }
  return 0;
}

}  // namespace varlo
