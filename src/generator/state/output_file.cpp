#include "generator/state/output_file.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"

namespace varlo {

std::string OutputPath(const StoreProject& project, std::string_view name) {
  std::string path;
  if (!project.webDir.isSet()) {
    path.append(project.projectDir.view()).append("\\web");
  } else {
    path.append(project.webDir.view());
  }
  return path.append("\\").append(name);
}

int WriteGeneratedFile(Program& program, std::string_view path, std::string_view text) {
  const std::string target = SingleBackSlashes(path);
  program.files.remove(target);
  OpenFile file(program.files, program.files.create(target));
  if (!file.isOpen()) {
    ErrorBox(program, message::kPageWriteError);
    return 0;
  }
  program.files.write(file.handle(), text.data(), text.size());
  return 1;
}

}  // namespace varlo
