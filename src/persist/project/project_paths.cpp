#include "persist/project/project_paths.h"

#include "core/program/messages.h"
#include "core/program/program.h"
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
