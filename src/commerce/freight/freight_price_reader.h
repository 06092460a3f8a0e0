// Reads the text of one freight group: its tax rates and its prices.
#pragma once

#include <string>
#include <string_view>

#include "commerce/freight/freight_tables.h"

namespace varlo {

// Reads `text`, as in "10%,2f,5<=0.5k,7<=1k", into the rates and prices of `group`. Gives what is wrong
// with it, as the end of a sentence, or the empty text; with a problem the prices mean nothing.
[[nodiscard]] std::string ReadFreightPrices(std::string_view text, FreightGroup& group);

}  // namespace varlo
