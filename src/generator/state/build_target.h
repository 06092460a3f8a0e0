// The directory that a build or a first preview goes to, as its dialogs ask for it.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

struct Program;
struct StoreProject;

// The longest text that the field for the directory takes; that for the title is not limited.
inline constexpr int kDirectoryLimit = 512;

// What the field for the directory starts with, whatever webDir holds.
[[nodiscard]] std::string StartDirectory(const StoreProject& project);

// Whether files can be written to a directory of this name; tells the user when a forward slash or a comma
// stands in the way.
[[nodiscard]] bool CheckDirectoryName(Program& program, std::string_view directory);

}  // namespace varlo
