#include "persist/project/project_load.h"

#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/project_close.h"
#include "core/text/line_reader.h"
#include "core/text/open_file.h"
#include "persist/project/project_migrate.h"
#include "persist/project/project_parse.h"
#include "persist/project/project_paths.h"
#include "persist/project/template_files.h"

namespace varlo {
namespace {

void refreshView(Program& program) {
  ShowProjectTitle(program);
  program.view.loadForm();
  program.view.loadFreightList();
  program.view.loadCardList();
}

int loadProject(Program& program) {
  StoreProject& project = program.project;
  OpenFile file(program.files, program.files.openRead(project.projectFile.view()));
  if (!file.isOpen()) {
    ErrorBox(program, FillMessage(message::kProjectReadError, project.projectFile.view()));
    project.projectFile.release();
    return 0;
  }
  ProjectClose(program);
  ProjectDirFromFile(project);
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  project.nodesRead = 0;
  project.root = ProjectParse(program, reader, nullptr, nullptr, false);
  project.currentNode = project.treeNode = project.root;
  file.close();
  ProjectMigrate(program);
  ProjectReadTemplates(program);
  refreshView(program);
  if (project.currency.isNull()) project.currency.assign("$");
  program.screen.postCommand(Command::ResizeMainWindow);
  return 1;
}

}  // namespace

int ProjectLoad(Program& program) {
  if (!program.project.projectFile.isSet()) return 0;
  return program.screen.runTask(kProductName, message::kLoadingProject, [&] {
    WaitCursorOn(program);
    const int result = loadProject(program);
    WaitCursorOff(program);
    return result;
  });
}

}  // namespace varlo
