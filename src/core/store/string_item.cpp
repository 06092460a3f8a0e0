#include "core/store/string_item.h"

#include "core/store/record.h"

namespace varlo {

StringItem* StringItemInit(StringItem* item) { return RecordInit(item); }

StringItem* StringItemCopy(StringItem* destination, const StringItem* source) {
  if (destination == nullptr) destination = StringItemInit(nullptr);
  if (source == nullptr) return StringItemInit(destination);
  destination->text = source->text;
  return destination;
}

void StringItemListFree(StringItem* head) { RecordListFree(head); }

}  // namespace varlo
