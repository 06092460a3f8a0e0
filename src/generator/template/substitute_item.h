// SubstituteItem: the full pass over a text with the values of one item, step by step as they are told.
// It takes whatever a value brings along; most texts need less (see page_text.h).
#pragma once

#include <string>

#include "generator/items/item_values.h"
#include "generator/items/replace.h"

namespace varlo {

// Runs all steps over `text` with the values of `item`; `page` is the node of the page being built, and
// names it in messages. 1; 0 with a message when there is no scheme, and the later steps are left out.
int SubstituteItem(ItemValues& values, std::string& text, const StoreNode& item, const StoreNode& page);

// The same with values of its own, for a single text.
int SubstituteItem(Generator& generator, std::string& text, const StoreNode& item, const StoreNode& page);

// The messages of a pass, which whoever makes it reports in this order.
void ReportMissingCode(Generator& generator, const StoreNode& item, const StoreNode& page);
void ReportMissingServer(Generator& generator);

}  // namespace varlo
