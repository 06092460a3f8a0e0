// Paths as the program keeps them: 8-bit strings with back slashes.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

// The path with every run of back slashes reduced to one.
[[nodiscard]] std::string SingleBackSlashes(std::string_view path);

// What stands behind the last back slash.
[[nodiscard]] std::string_view PathName(std::string_view path);

// The name part without its extension.
[[nodiscard]] std::string_view PathStem(std::string_view path);

}  // namespace varlo
