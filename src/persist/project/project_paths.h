// Where the files of a project lie.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varlo {

struct Program;
struct StoreNode;
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

// Path of a node's template in it: the one that the node names, else that of its kind.
[[nodiscard]] std::optional<std::string> NodeTemplatePath(const StoreProject& project, const StoreNode& node);

// Puts the path of a template at the head of those used lately, unless it is among them; the last one falls off. An
// empty path is none.
void RememberTemplate(StoreProject& project, std::string_view path);

// Makes projectDir follow projectFile: the path up to its last back slash, or, without one, the whole
// name. Null follows null.
void ProjectDirFromFile(StoreProject& project);

// Names the product and the project in the title of the main window.
void ShowProjectTitle(Program& program);

}  // namespace varlo
