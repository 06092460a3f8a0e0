// Where the files of a project lie.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varlo {

struct Program;
struct StoreProject;

inline constexpr std::string_view kOrderTemplateName = "order.htm";
inline constexpr std::string_view kConfirmTemplateName = "confirm.htm";

// Path of a file in the template folder of the project, or below; none for a name that leads out of it.
[[nodiscard]] std::optional<std::string> ProjectTemplatePath(const StoreProject& project, std::string_view fileName);

// Backups are numbered from 1, the newest, to this.
inline constexpr int kBackups = 10;

// The folder of the project's backups, and the backup with this number, from 1 for the newest.
[[nodiscard]] std::string BackupFolder(const StoreProject& project);
[[nodiscard]] std::string BackupPath(const StoreProject& project, int number);

// Makes projectDir follow projectFile: the path up to its last back slash, or, without one, the whole
// name. Null follows null.
void ProjectDirFromFile(StoreProject& project);

// Names the product and the project in the title of the main window.
void ShowProjectTitle(Program& program);

}  // namespace varlo
