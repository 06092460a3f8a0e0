// StringItem: a line of a small doubly linked list of texts.
#pragma once

#include "core/text/text.h"

namespace varlo {

struct StringItem {
  StringItem* next = nullptr;
  StringItem* prev = nullptr;
  Text text;
};

// A zeroed item: a new one for null, else the given one with its text released.
StringItem* StringItemInit(StringItem* item);

// Copies the text; links of an existing destination stay, a new one has none. A null source gives a
// zeroed item.
StringItem* StringItemCopy(StringItem* destination, const StringItem* source);

// Releases the list from `head` along next.
void StringItemListFree(StringItem* head);

}  // namespace varlo
