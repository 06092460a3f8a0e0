#include <iostream>

#include "cli/commands.h"
#include "cli/headless_program.h"
#include "core/program/scheme.h"
#include "core/text/charset.h"
#include "core/text/open_file.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

int fail(const std::string& words) {
  std::cerr << "varlo-cli: " << words << '\n';
  return kExitFailed;
}

// A slash or comma in the name gets the program's own message; here only what is there counts.
bool projectExists(Program& program, const std::string& name) {
  return FileExists(program.files, ProjectsFolder(program) + "\\" + name + "\\" + name + ".stp") == 1;
}

}  // namespace

int RunNew(Machine& machine, const CommandArguments& arguments) {
  HeadlessProgram headless(machine, *machine.files);
  Program& program = headless.program();
  StoreProject& project = program.project;
  const std::string name = TextFromArgument(arguments.name);
  const std::string scheme = TextFromArgument(arguments.scheme);
  if (projectExists(program, name)) return fail("the project '" + arguments.name + "' exists already");
  if (!scheme.empty() && SchemeFindByPath(program.config, program.config.schemeStyles, scheme) == 0) {
    return fail("there is no scheme '" + arguments.scheme + "'");
  }
  project.projectFile.release();
  project.storeTitle.assign(std::string_view(TextFromArgument(arguments.title)));
  machine.files->makeFolder("Projects");
  if (ProjectCreate(program, name.c_str()) != 1) return kExitFailed;
  project.projectScheme = program.config.currentScheme;
  if (project.currency.isNull()) project.currency.assign("$");
  if (!ProjectSaveNow(program)) return kExitFailed;
  std::cout << TerminalText(project.projectFile.view()) << '\n';
  return kExitDone;
}

}  // namespace varlo
