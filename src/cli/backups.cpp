#include <iostream>

#include "cli/commands.h"
#include "cli/headless_program.h"
#include "core/text/number_text.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "persist/life/backup.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

// The number of a backup file, "-" for a foreign one.
std::string numberOf(const std::string& path, std::string_view projectName) {
  std::string_view name = PathName(path);
  if (!name.starts_with(projectName) || name.substr(projectName.size(), 1) != ".") return "-";
  name.remove_prefix(projectName.size() + 1);
  const bool isNumber = !name.empty() && name.find_first_not_of("0123456789") == std::string_view::npos;
  return isNumber ? std::string(name) : "-";
}

}  // namespace

int RunBackups(Machine& machine, const CommandArguments& arguments) {
  HeadlessProgram headless(machine, *machine.files);
  headless.name(arguments.project);
  Program& program = headless.program();
  const std::string_view projectName = PathName(program.project.projectFile.view());
  for (const BackupEntry& backup : BackupListRead(program)) {
    std::cout << numberOf(backup.path, projectName) << '\t' << DateToText(program.clock, backup.time, false) << '\t'
              << backup.size << '\t' << TerminalText(PathName(backup.path)) << '\n';
  }
  return kExitDone;
}

int RunRestore(Machine& machine, const CommandArguments& arguments) {
  HeadlessProgram headless(machine, *machine.files);
  headless.name(arguments.project);
  Program& program = headless.program();
  const StoreProject& project = program.project;
  const std::string backup = std::string(project.projectDir.view())
                                 .append("\\Backup\\")
                                 .append(PathName(project.projectFile.view()))
                                 .append("." + std::to_string(arguments.number));
  if (FileExists(program.files, backup) == 0) {
    std::cerr << "varlo-cli: there is no backup " << arguments.number << '\n';
    return kExitFailed;
  }
  return ProjectRestore(program, backup) ? kExitDone : kExitFailed;
}

}  // namespace varlo
