#include "layout/named_colours.h"

#include <algorithm>

#include "core/text/text_search.h"
#include "layout/named_colour_table.h"

namespace varlo {

std::optional<std::string_view> ColourByName(std::string_view text) {
  const auto* row = std::find_if(NamedColourTable.begin(), NamedColourTable.end(),
                                 [&](const NamedColour& colour) { return EqualsNoCase(colour.name, text); });
  if (row == NamedColourTable.end()) return std::nullopt;
  return row->value;
}

}  // namespace varlo
