// The keywords of a node, spread over fields and joined again: one comma-separated text in the store, one keyword or
// key phrase in each field of the Keyword Manager.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/text/text.h"

namespace varlo {

inline constexpr std::size_t kKeywordFields = 15;

struct Keywords {
  std::array<std::string, kKeywordFields> field;
  std::string additional;  // what is left behind the last field, commas included
};

// Spreads a text; blanks stay. `reached` becomes the number of fields that it went over, empty ones included.
[[nodiscard]] Keywords SplitKeywords(std::string_view text, std::size_t& reached);

// The fields that are not empty, with commas between them; trailing white space and then one comma at the end are
// cut. Null when all of them are empty; blanks alone are the empty text.
[[nodiscard]] Text JoinKeywords(const Keywords& keywords);

}  // namespace varlo
