#include "persist/project/project_paths.h"

#include <algorithm>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/store/store_node.h"
#include "core/text/number_text.h"
#include "core/text/paths.h"

namespace varlo {

std::optional<std::string> ProjectTemplatePath(const StoreProject& project, std::string_view fileName) {
  if (!StaysBelow(fileName)) return std::nullopt;
  return std::string(project.projectDir.view()).append("\\template\\").append(fileName);
}

std::string BackupFolder(const StoreProject& project) {
  return SingleBackSlashes(std::string(project.projectDir.view()).append("\\Backup"));
}

std::string BackupPath(const StoreProject& project, int number) {
  std::string path = BackupFolder(project);
  return path.append("\\").append(PathName(project.projectFile.view())).append(".").append(IntToText(number));
}

std::optional<std::string> NodeTemplatePath(const StoreProject& project, const StoreNode& node) {
  const Text& name = node.templateName;
  return ProjectTemplatePath(project, name.isSet() ? name.view() : TraitsOf(node.kind).defaultTemplate);
}

void RememberTemplate(StoreProject& project, std::string_view path) {
  auto& names = project.templateNames;
  if (path.empty()) return;
  if (std::any_of(names.begin(), names.end(), [path](const Text& name) { return name.view() == path; })) return;
  std::move_backward(names.begin(), names.end() - 1, names.end());
  names.front().assign(path);
}

void ProjectDirFromFile(StoreProject& project) {
  if (project.projectFile.isNull()) {
    project.projectDir.release();
    return;
  }
  const std::string_view file = project.projectFile.view();
  project.projectDir.assign(file.substr(0, file.rfind('\\')));
}

void ShowProjectTitle(Program& program) {
  const std::string_view stem = PathStem(program.project.projectFile.view());
  program.view.setWindowTitle(std::string(kProductName).append(" - ").append(stem));
}

}  // namespace varlo
