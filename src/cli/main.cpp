// varlo-cli: the engine without a window.

#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "core/fixed_clock.h"

namespace varlo {
namespace {

// The machine, with a clock that stands still when the build asks for reproducible results.
Machine makeMachine(const std::string& folder) {
  Machine machine = MakeMachine(folder);
  const char* epoch = std::getenv("SOURCE_DATE_EPOCH");
  if (epoch != nullptr && *epoch != '\0') machine.clock = std::make_unique<FixedClock>(std::atoll(epoch));
  return machine;
}

struct Arguments {
  std::string install;
  std::string project;
  std::string output;
};

using Command = std::function<int(Machine&)>;

CLI::App* addCommand(CLI::App& app, const char* name, const char* help, Arguments& arguments, Command& chosen,
                     Command command) {
  CLI::App* added = app.add_subcommand(name, help);
  added->add_option("PROJECT.stp", arguments.project, "the project file")->required();
  added->callback([&chosen, command = std::move(command)] { chosen = command; });
  return added;
}

int run(int argc, char** argv) {
  CLI::App app("Builds and handles Varlo PRO store projects without a window.", "varlo-cli");
  Arguments arguments;
  Command chosen;
  app.require_subcommand(1);
  app.add_option("--install", arguments.install,
                 "installation directory that relative names are taken against (default: the current directory)")
      ->check(CLI::ExistingDirectory);

  CLI::App* resave =
      addCommand(app, "resave", "load a project and save it again", arguments, chosen,
                 [&](Machine& machine) { return RunResave(machine, arguments.project, arguments.output); });
  resave->add_option("--output", arguments.output, "write to this file; the project stays untouched");
  addCommand(app, "dump", "show a project as JSON", arguments, chosen,
             [&](Machine& machine) { return RunDump(machine, arguments.project); });

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kExitDone : kExitFailed;
  }
  Machine machine = makeMachine(arguments.install);
  return chosen(machine);
}

}  // namespace
}  // namespace varlo

int main(int argc, char** argv) {
  try {
    return varlo::run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "varlo-cli: " << error.what() << '\n';
    return varlo::kExitFailed;
  }
}
