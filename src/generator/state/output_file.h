// Where generated files go, and how those beside the pages are written.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

struct Program;
struct StoreProject;

// Full name of a generated file: in webDir, or, when there is none, in "web" below the project.
[[nodiscard]] std::string OutputPath(const StoreProject& project, std::string_view name);

// Writes a text over any old file, with every run of back slashes in the path reduced to one. 1 written, 0
// with a message when the file can't be created.
int WriteGeneratedFile(Program& program, std::string_view path, std::string_view text);

}  // namespace varlo
