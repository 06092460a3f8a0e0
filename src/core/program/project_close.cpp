#include "core/program/project_close.h"

#include "core/program/program.h"
#include "core/store/card_entry.h"
#include "core/store/user_variable.h"

namespace varlo {

// Deliberate: projectFile, the form templates and messages, currency, the tax switches, methodName and
// clipboardNode stay. The project file is always written with all of them.
void ProjectClose(Program& program) {
  StoreProject& project = program.project;
  ++project.serial;
  project.webDir.release();
  project.storeTitle.release();
  project.tax.freightTaxRate.release();
  project.projectDir.release();
  for (CardEntry* card = program.config.cardCatalogue; card != nullptr; card = card->next) card->selected = 0;
  for (Text& name : project.templateNames) name.release();
  program.view.clearTree();

  UserVariableListFree(project, project.variables);
  project.variables = project.variablesTail = project.currentVariable = nullptr;
  program.view.loadVariableList();

  project.root = project.currentNode = project.treeNode = nullptr;
  project.dragNode = project.dragList = nullptr;
  project.nodes.reset();

  CardEntryListFree(project.acceptedCards);
  project.acceptedCards = project.currentCard = nullptr;
  FreightRegionListFree(project.regions);
  project.regions = project.regionsTail = project.currentRegion = nullptr;
  program.view.loadFreightList();

  project.projectScheme = nullptr;
  program.config.currentScheme = program.config.currentStyle = nullptr;
}

}  // namespace varlo
