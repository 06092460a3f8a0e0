#include "persist/project/project_paths.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/paths.h"

namespace varlo {

std::string ProjectTemplatePath(const StoreProject& project, std::string_view fileName) {
  return std::string(project.projectDir.view()).append("\\template\\").append(fileName);
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
