#include "generator/state/build_target.h"

#include "core/program/messages.h"
#include "core/program/program.h"

namespace varlo {

std::string StartDirectory(const StoreProject& project) {
  return std::string(project.projectDir.view()).append("\\Web\\");
}

bool CheckDirectoryName(Program& program, std::string_view directory) {
  if (directory.find_first_of("/,") == std::string_view::npos) return true;
  program.screen.messageBox({.text = message::kInvalidDirectory, .title = "Error", .icon = Icon::Stop});
  return false;
}

}  // namespace varlo
