#include "persist/dialogs/save_as_dialog.h"

#include <optional>

#include "core/forms/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/paths.h"
#include "core/text/text_edit.h"
#include "core/text/text_search.h"
#include "persist/life/project_life.h"
#include "persist/project/project_paths.h"

namespace varlo {
namespace {

using namespace save_as;

constexpr Row kRows[] = {
    {{{.id = kName,
       .kind = Kind::Edit,
       .label = "Enter a &New Project File Name:",
       .labelWidth = kLabelAbove,
       .buttons = {{kBrowse, "&Browse >", 82}}}}},
};
constexpr FootButton kFoot[] = {{kOk, "OK", Option::Default}, {kCancel, "Cancel"}};

constexpr int kLongestName = 50;
constexpr const char* kExtension = ".stp";

// The path with another extension.
std::string withExtension(std::string_view path, std::string_view extension) {
  const std::size_t dot = path.rfind('.');
  const bool inName = dot != std::string_view::npos && path.find('\\', dot) == std::string_view::npos;
  return std::string(inName ? path.substr(0, dot) : path).append(extension);
}

std::string_view extensionOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : name.substr(dot);
}

}  // namespace

constinit const DialogShape SaveAsDialog::kShape{
    .id = kWindow, .title = "Save Project As", .size = {380, 0}, .rows = kRows, .foot = kFoot};

void SaveAsDialog::opened(Dialog& dialog) {
  dialog.limitText(kName, kLongestName);
  dialog.enable(kOk, false);
  dialog.enable(kCancel, program_.project.projectFile.isSet());
}

void SaveAsDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.control == kName && event.notice == Notice::Changed) {
    dialog.enable(kOk, !dialog.text(kName).empty());
  }
  if (event.notice != Notice::Clicked) return;
  if (event.control == kBrowse) browse(dialog);
  if (event.control == kCancel) dialog.end(0);
  if (event.control == kOk) {
    std::string name;
    TextCopyUntil(name, FieldText(dialog, kName).view(), ',');
    if (!name.empty() && saveAs(name)) dialog.end(1);
  }
}

// Without an open project the dialog can only be left by naming one.
void SaveAsDialog::closeRequested(Dialog& dialog) {
  if (program_.project.projectFile.isSet()) dialog.end(0);
}

void SaveAsDialog::browse(Dialog& dialog) {
  const std::optional<std::string> chosen = ChooseProjectFile(program_, message::kSaveAsTitle);
  if (!chosen) return;
  std::string path = *chosen;
  while (TextReplaceNoCase(path, kExtension, "") != std::string::npos) {
  }
  dialog.setText(kName, PathName(path));
}

// False when the dialog is to stay.
bool SaveAsDialog::saveAs(const std::string& name) {
  StoreProject& project = program_.project;
  const std::string folder = ProjectsFolder(program_) + "\\" + name;
  if (!makeProjectFolder(name, folder)) return false;
  for (const char* below : {"\\Web", "\\Template"}) program_.files.makeFolder(folder + below);
  const std::string oldFile(project.projectFile.view());
  project.projectFile.assign(std::string_view(folder + "\\" + name + kExtension));
  ProjectDirFromFile(project);
  if (!oldFile.empty()) {
    WaitCursorOn(program_);
    copyCompanions(oldFile, folder, name);
    WaitCursorOff(program_);
  }
  ProjectCopyFormTemplates(program_);
  ShowProjectTitle(program_);
  return true;
}

// False when there is no folder to use, or the user does not want the one that is there.
// A name that leads out of the folder of projects is one whose folder can't be made.
bool SaveAsDialog::makeProjectFolder(const std::string& name, const std::string& folder) {
  switch (IsProjectFolder(name) ? program_.files.makeFolder(folder) : MakeFolderResult::Failed) {
    case MakeFolderResult::Made:
      return true;
    case MakeFolderResult::Failed:
      ErrorBox(program_, FillMessage(message::kFolderError, folder));
      return false;
    case MakeFolderResult::Exists:
      break;
  }
  return program_.screen.messageBox({.text = message::kFolderExists,
                                     .title = message::kConfirmation,
                                     .buttons = Buttons::YesNoCancel,
                                     .icon = Icon::Question}) == Answer::Yes;
}

// Copies what lies beside the old project file under its name. Deliberate: the target is built by
// appending to one text for all of them, so only the first lands where it should, and a later one, which
// would go into a folder of the first one's name, fails silently.
void SaveAsDialog::copyCompanions(const std::string& oldFile, const std::string& folder, const std::string& name) {
  std::string target = folder;
  const std::string oldFolder = oldFile.substr(0, oldFile.size() - PathName(oldFile).size());
  for (const FoundFile& found : program_.files.search(withExtension(oldFile, ".*"))) {
    if (found.name.starts_with('.') || EqualsNoCase(found.name, PathName(oldFile))) continue;
    target.append("\\").append(name).append(extensionOf(found.name));
    program_.files.copy(oldFolder + found.name, target, true);
  }
}

}  // namespace varlo
