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

// Whether `name`, put behind a folder and a back slash, names something in that folder or below it, on every
// system: no drive, no slash in front, and no ".." that leads above the folder. Both slashes part names. A
// colon counts as a drive wherever it stands, and parts of dots and blanks that systems read differently are
// refused. The empty name is the folder itself.
[[nodiscard]] bool StaysBelow(std::string_view name);

}  // namespace varlo
