// Looking up a colour by its name.
#pragma once

#include <optional>
#include <string_view>

namespace varlo {

// The six hexadecimal digits of the colour with exactly this name, ignoring case; none for a name that is
// not in the table.
[[nodiscard]] std::optional<std::string_view> ColourByName(std::string_view text);

}  // namespace varlo
