// varlo-cli: the engine without a window.

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "core/program/fixed_clock.h"

namespace varlo {
namespace {

// The machine, with a clock that stands still when the build asks for reproducible results.
Machine makeMachine(const std::string& folder) {
  Machine machine = MakeMachine(folder);
  const char* epoch = std::getenv("SOURCE_DATE_EPOCH");
  if (epoch != nullptr && *epoch != '\0') machine.clock = std::make_unique<FixedClock>(std::atoll(epoch));
  return machine;
}

using Command = int (*)(Machine&, const CommandArguments&);

// What the command line names, and the command to run with it.
struct Choice {
  CommandArguments arguments;
  Command command = nullptr;
};

CLI::App* addCommand(CLI::App& app, const char* name, const char* help, Command command, Choice& choice) {
  CLI::App* added = app.add_subcommand(name, help);
  added->callback([&choice, command] { choice.command = command; });
  return added;
}

CLI::App* addProjectCommand(CLI::App& app, const char* name, const char* help, Command command, Choice& choice) {
  CLI::App* added = addCommand(app, name, help, command, choice);
  added->add_option("PROJECT.stp", choice.arguments.project, "the project file")->required();
  return added;
}

void addImport(CLI::App& app, Choice& choice) {
  CommandArguments& arguments = choice.arguments;
  CLI::App* import =
      addProjectCommand(app, "import", "make products of a delimited text file, or update them", RunImport, choice);
  import->add_option("FILE", arguments.list, "the delimited text file")->required();
  import->add_option("--columns", arguments.columns,
                     "what the columns carry, by commas: title, code, cost, ...; nothing for one to leave out");
  import->add_option("--delimiter", arguments.delimiter, "what separates fields (default: as the first rows show)")
      ->each([&arguments](const std::string&) { arguments.hasDelimiter = true;
});
import->add_option("--quote", arguments.quote, "what stands around a quoted field (default: \")");
import->add_option("--escape", arguments.escape, "what stands in front of a quote inside of quotes (default: \")");
import->add_option("--decimal", arguments.decimal, "the decimal point of the file (default: .)");
import->add_option("--skip", arguments.skip, "leave out so many rows at the top")->check(CLI::NonNegativeNumber);
CLI::Option* below =
    import->add_option("--below", arguments.below, "file name of the page to import below (default: the first)");
import->add_flag("--update", arguments.update, "change the products that have the codes of the rows")
    ->excludes(below);
import->add_option("--show", arguments.show, "print so many rows as they are read, and change nothing")
    ->check(CLI::NonNegativeNumber);
}  // namespace

void addCommands(CLI::App& app, Choice& choice) {
  CommandArguments& arguments = choice.arguments;
  addProjectCommand(app, "resave", "load a project and save it again", RunResave, choice)
      ->add_option("--output", arguments.output, "write to this file; the project stays untouched");
  addProjectCommand(app, "dump", "show a project as JSON", RunDump, choice);

  CLI::App* merge = addProjectCommand(app, "merge", "add the tree of another project", RunMerge, choice);
  merge->add_option("OTHER.stp", arguments.other, "the project that is added")->required();
  merge->add_option("--at", arguments.at, "file name of the page it is added behind (default: the first)");

  addProjectCommand(app, "import-freight", "take the freight tables of another project", RunImportFreight, choice)
      ->add_option("OTHER.stp", arguments.other, "the project that they are taken from")
      ->required();

  addImport(app, choice);

  CLI::App* added =
      addCommand(app, "new", "make a project in the folder Projects of the installation", RunNew, choice);
  added->add_option("NAME", arguments.name, "name of the project")->required();
  added->add_option("--title", arguments.title, "title of the store")->required();
  added->add_option("--scheme", arguments.scheme, "layout, as STYLE/SCHEME");

  CLI::App* build = addProjectCommand(app, "build", "build the store's web site", RunStoreBuild, choice);
  build->add_option("--to", arguments.to, "directory of the site (default: Web in the project's folder)");
  build->add_option("--title", arguments.title, "title of the store (default: the project's)")
      ->each([&arguments](const std::string&) { arguments.hasTitle = true; });
  build->add_flag("--open", arguments.open, "show the site in the browser");

  CLI::App* preview = addProjectCommand(app, "preview", "make one page and the cart around it", RunPreview, choice);
  preview->add_option("--at", arguments.at, "file name of the page (default: the first)");
  preview->add_option("--to", arguments.to, "directory that it is made in")->required();

  addProjectCommand(app, "freight", "print the freight expression of a project", RunFreight, choice);

  addProjectCommand(app, "backups", "list the backups of a project", RunBackups, choice);
  addProjectCommand(app, "restore", "bring a backup back over the project", RunRestore, choice)
      ->add_option("NUMBER", arguments.number, "number of the backup; 1 is the newest")
      ->required();
}

int run(int argc, char** argv) {
  CLI::App app("Builds and handles Varlo PRO store projects without a window.", "varlo-cli");
  Choice choice;
  app.require_subcommand(1);
  app.allow_windows_style_options(false);  // a path may begin with a slash, on Windows too
  app.add_option("--install", choice.arguments.install,
                 "installation directory that relative names are taken against (default: the current directory)")
      ->check(CLI::ExistingDirectory);
  addCommands(app, choice);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kExitDone : kExitFailed;
  }
  Machine machine = makeMachine(choice.arguments.install);
  return choice.command(machine, choice.arguments);
}

}  // namespace varlo
}  // namespace varlo

int main(int argc, char** argv) {
  try {
    return varlo::run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "varlo-cli: " << error.what() << '\n';
    return varlo::kExitFailed;
  }
}
