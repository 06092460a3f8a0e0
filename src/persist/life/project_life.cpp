#include "persist/life/project_life.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "core/tree/node_commands.h"
#include "persist/installation/config_file.h"
#include "persist/life/backup.h"
#include "persist/life/template_set.h"
#include "persist/project/project_load.h"
#include "persist/project/project_paths.h"
#include "persist/project/template_files.h"

namespace varlo {
namespace {

// Shows the tree of a project that was opened or made.
void showTree(Program& program, StoreNode* listed) {
  program.view.clearTree();
  program.view.fillTree();
  program.view.loadItemList(listed);
}

void refreshFormAndMenu(Program& program) {
  program.view.loadForm();
  program.view.refreshCommandStates();
}

int openExisting(Program& program) {
  program.view.clearTree();
  ProjectLoad(program);
  program.view.fillTree();
  program.view.loadItemList(program.project.currentNode);
  refreshFormAndMenu(program);
  return 0;
}

void copyFormTemplate(Program& program, std::string_view shipped, std::string_view fileName,
                      std::string_view failure) {
  const std::string target = std::string(program.project.projectDir.view()).append("\\Template\\").append(fileName);
  if (!program.files.copy(shipped, target, true)) ErrorBox(program, failure);
}

}  // namespace

int ProjectCreate(Program& program, const char* name) {
  if (name == nullptr) return 0;
  if (std::string_view(name).find_first_of("/\\,") != std::string_view::npos || !IsProjectFolder(name)) {
    program.screen.messageBox({.text = message::kInvalidProjectName, .title = "Error", .icon = Icon::Stop});
    return -1;
  }
  StoreProject& project = program.project;
  project.webDir.release();
  project.projectDir.release();
  const std::string folder = std::string("Projects\\") + name;
  for (const char* below : {"", "\\Web", "\\Template"}) program.files.makeFolder(folder + below);
  project.projectFile.assign(std::string_view(ProjectsFolder(program) + "\\" + name + "\\" + name + ".stp"));
  if (FileExists(program.files, project.projectFile.view()) == 1) return openExisting(program);
  ProjectInitNew(program);
  ProjectCopyFormTemplates(program);
  ProjectReadTemplates(program);
  refreshFormAndMenu(program);
  return 1;
}

void ProjectInitNew(Program& program) {
  StoreProject& project = program.project;
  program.view.clearTree();
  project.root = project.currentNode = project.treeNode = nullptr;
  project.dragNode = project.dragList = nullptr;
  project.nodes.reset();

  StoreNode* root = project.nodes.allocate();
  DrawNodeId(program, *root);
  root->title = project.storeTitle;
  root->fileName = PageNameOf(*root);
  project.root = project.currentNode = project.treeNode = root;
  program.view.fillTree();
  program.view.loadItemList(root);
  ProjectDirFromFile(project);
}

void ProjectCopyFormTemplates(Program& program) {
  if (program.project.projectDir.isNull()) return;
  copyFormTemplate(program, "template\\order.dat", kOrderTemplateName, message::kOrderCopyError);
  copyFormTemplate(program, "template\\confirm.dat", kConfirmTemplateName, message::kConfirmCopyError);
  CopyTemplateSet(program, program.config.currentScheme);
}

int ProjectOpenPath(Program& program, std::string_view path, bool createIfMissing) {
  StoreProject& project = program.project;
  const bool hasDot = path.find('.') != std::string_view::npos;
  project.projectFile.assign(std::string_view(std::string(path) + (hasDot ? "" : ".stp")));
  if (ProjectLoad(program) == 1) {
    showTree(program, project.root);
    program.view.loadVariableList();
    program.view.loadForm();
    return 1;
  }
  if (createIfMissing) {
    ProjectInitNew(program);
    return 1;
  }
  project.projectFile.release();
  ErrorBox(program, message::kProjectOpenError);
  refreshFormAndMenu(program);
  return 0;
}

std::optional<std::string> ChooseProjectFile(Program& program, std::string_view title) {
  return program.screen.chooseFile(
      {.folder = ProjectsFolder(program), .title = title, .filter = message::kProjectFilter, .extension = "stp"});
}

int ProjectOpenDialog(Program& program) {
  const std::optional<std::string> path = ChooseProjectFile(program, message::kOpenTitle);
  if (!path) return 0;
  SavePrompt(program);
  return ProjectOpenPath(program, *path, false);
}

PromptResult SavePrompt(Program& program) {
  if (program.project.dirty == 0) return PromptResult::Unasked;
  const Answer answer = program.screen.messageBox({.text = message::kSavePrompt,
                                                   .title = message::kSavePromptTitle,
                                                   .buttons = Buttons::YesNo,
                                                   .icon = Icon::Question});
  if (answer != Answer::Yes) return PromptResult::Unasked;
  return SaveWithBackup(program) ? PromptResult::Saved : PromptResult::Failed;
}

bool ProjectSaveNow(Program& program) {
  const bool result = SaveWithBackup(program);
  ConfigSave(program);
  return result;
}

bool ProjectRestore(Program& program, const std::string& backup) {
  const std::string target(program.project.projectFile.view());
  const bool copied = program.files.copy(backup, target, true);
  if (copied) program.project.cutFile.release();
  ProjectOpenPath(program, target, true);
  return copied;
}

std::string ProjectsFolder(Program& program) { return program.files.workingFolder() + "\\Projects"; }

// A level up must not lead out either.
bool IsProjectFolder(std::string_view name) { return StaysBelow(std::string(name).append("\\..")); }

int DirectoryCreatePath(Program& program, std::string_view path) {
  int result = 1;
  for (std::size_t end = 0; end < path.size(); ++end) {
    end = std::min(path.find('\\', end), path.size());
    const std::string_view prefix = path.substr(0, end);
    if (prefix.empty() || prefix.ends_with('\\')) continue;
    if (program.files.makeFolder(prefix) == MakeFolderResult::Failed) result = 0;
  }
  return result;
}

}  // namespace varlo
