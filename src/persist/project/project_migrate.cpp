#include "persist/project/project_migrate.h"

#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/text_edit.h"

namespace varlo {
namespace {

// Below the first, the shelf template is replaced too; from the second on, nothing is.
constexpr std::int32_t kFirstWithNewShelf = 101004;
constexpr std::int32_t kFirstCurrent = 103001;

struct Replacement {
  const char* fileName;  // in the project's template folder
  const char* from;      // what becomes `to` in the path of the copy that is kept
  const char* to;
  const char* shipped;  // in the installation
};

constexpr Replacement kShelf{"shelf.htm", "shelf.htm", "shelf.bak", "template\\shelf.htm"};
constexpr Replacement kOrder{"order.htm", "order.htm", "order.bak", "template\\order.dat"};
// Deliberate: the name of the page is misspelt. Its own copy goes onto itself, the shipped page becomes
// a file of that name, and the project's confirm.htm stays as it is.
constexpr Replacement kConfirm{"cofirm.htm", "confirm.htm", "confirm.bak", "template\\confirm.dat"};

void replaceTemplate(Program& program, const Replacement& replacement) {
  const std::string path =
      std::string(program.project.projectDir.view()).append("\\Template\\").append(replacement.fileName);
  std::string kept = path;
  TextReplace(kept, replacement.from, replacement.to);
  program.files.copy(path, kept, true);
  program.files.copy(replacement.shipped, path, true);
}

}  // namespace

int ProjectMigrate(Program& program) {
  StoreProject& project = program.project;
  if (project.fileVersion >= kFirstCurrent) {
    project.fileVersion = kFileVersion;
    return 0;
  }
  const bool shelfToo = project.fileVersion < kFirstWithNewShelf;
  program.screen.messageBox({.text = shelfToo ? message::kUpgradeShelfOrderConfirm : message::kUpgradeOrderConfirm,
                             .title = message::kUpgradeTitle,
                             .icon = Icon::Exclamation});
  if (shelfToo) replaceTemplate(program, kShelf);
  replaceTemplate(program, kOrder);
  replaceTemplate(program, kConfirm);
  SetDirty(program, 1);
  project.fileVersion = kFileVersion;
  return 1;
}

}  // namespace varlo
