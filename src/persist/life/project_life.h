// How a project comes into being, opens, saves, and is replaced by another.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varlo {

struct Program;

// Makes the project "Projects\N" of the installation, with its folders, a root and the shipped
// templates. 1 made; 0 for a null name, or when a project of that name was there, which is opened
// instead; -1 with a message for a name with a slash or a comma, or that is no folder of its own.
int ProjectCreate(Program& program, const char* name);

// Empties the tree and gives it a root with the store's title.
void ProjectInitNew(Program& program);

// Copies the shipped form templates, with a message for each that fails, and the template set of the
// current scheme into the project. Does nothing without a project directory.
void ProjectCopyFormTemplates(Program& program);

// Opens a project; ".stp" is appended to a path without any dot. 1 opened, or made new with
// `createIfMissing`; 0 with a message.
int ProjectOpenPath(Program& program, std::string_view path, bool createIfMissing);

// Lets the user choose a project's file, below a title; none when that was cancelled.
std::optional<std::string> ChooseProjectFile(Program& program, std::string_view title);

// Lets the user choose a project, offers to save the open one, and opens the chosen one. 1 when one was
// opened.
int ProjectOpenDialog(Program& program);

// What became of the question whether to save: Unasked also stands for any answer but Yes.
enum class PromptResult { Unasked, Failed, Saved };

// Offers to save a changed project, and saves it with a backup on Yes.
PromptResult SavePrompt(Program& program);

// The Save command: rolling backup, project, configuration. Gives the result of the project's save.
bool ProjectSaveNow(Program& program);

// Copies a backup over the project's file, which is not kept, and opens it. Gives whether the copy
// worked; the project is opened again in any case.
bool ProjectRestore(Program& program, const std::string& backup);

// The folder below which projects are made.
[[nodiscard]] std::string ProjectsFolder(Program& program);

// Whether `name` names a folder below that of the projects, and not the folder itself or what lies outside of it.
[[nodiscard]] bool IsProjectFolder(std::string_view name);

// Makes every level of a path. 1, or 0 when a level could neither be made nor was there; the others are
// made all the same.
int DirectoryCreatePath(Program& program, std::string_view path);

}  // namespace varlo
