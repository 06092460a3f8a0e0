// The commands of varlo-cli. Each takes its arguments as the user gave them and gives the exit status
// of the process.
#pragma once

#include <string>

#include "platform/machine.h"

namespace varlo {

inline constexpr int kExitDone = 0;
inline constexpr int kExitErrors = 1;  // done, with errors counted
inline constexpr int kExitFailed = 2;  // could not be done, or wrong usage

struct CommandArguments {
  std::string install;  // installation directory
  std::string project;
  std::string output;
  std::string other;   // a second project
  std::string at;      // file name of a node
  std::string name;    // of a new project
  std::string title;   // of its store
  std::string scheme;  // "style/scheme"
  std::string to;      // directory of a site
  bool hasTitle = false;
  bool open = false;  // show the site in the browser
  int number = 0;     // of a backup

  // An import: the file, what its columns carry, how it is written, and where its products go.
  std::string list;
  std::string columns;
  std::string delimiter;
  std::string quote = "\"";
  std::string escape = "\"";
  std::string decimal = ".";
  std::string below;          // file name of a node
  bool hasDelimiter = false;  // else the file shows it
  bool update = false;        // products that are there, instead of new ones
  int skip = 0;               // rows at the top that are left out
  int show = -1;              // rows to print instead; -1 for none
};

// Loads a project and saves it again, with a backup; with an output the result goes to that file, and the project and
// its templates stay untouched.
int RunResave(Machine& machine, const CommandArguments& arguments);

// Prints a project as JSON.
int RunDump(Machine& machine, const CommandArguments& arguments);

// Adds the tree of another project behind the node with the given file name, else behind the root, and
// saves, with a backup.
int RunMerge(Machine& machine, const CommandArguments& arguments);

// Replaces the freight tables by those of another project and saves, with a backup.
int RunImportFreight(Machine& machine, const CommandArguments& arguments);

// Makes a project in the installation's Projects folder and saves it. One that exists is not touched.
int RunNew(Machine& machine, const CommandArguments& arguments);

// Lists the backups of a project.
int RunBackups(Machine& machine, const CommandArguments& arguments);

// Brings a backup back over the project's file.
int RunRestore(Machine& machine, const CommandArguments& arguments);

// Builds the store into a directory, else into the project's "Web". The log goes to standard output; errors
// that it counts, and a build that did not start, give kExitErrors.
int RunStoreBuild(Machine& machine, const CommandArguments& arguments);

// Makes the page of the node with the given file name, else of the first one, with the cart around it, and
// prints the path of the frameset.
int RunPreview(Machine& machine, const CommandArguments& arguments);

// Makes products of the rows of a delimited text file, below the node with the given file name or else below the
// root, or updates those with the codes of the rows, and saves, with a backup. kExitErrors when rows were left out.
// With `show` the first rows are printed as they are read, and nothing is changed.
int RunImport(Machine& machine, const CommandArguments& arguments);

// Prints the freight expression of a project.
int RunFreight(Machine& machine, const CommandArguments& arguments);

}  // namespace varlo
