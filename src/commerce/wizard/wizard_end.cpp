#include "commerce/wizard/wizard_end.h"

#include <utility>

#include "commerce/wizard/wizard_state.h"
#include "core/program/program.h"
#include "core/program/project_close.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/user_variable.h"
#include "persist/life/project_life.h"
#include "persist/life/template_set.h"

namespace varlo {
namespace {

// The regions and cards that the pages changed in place. They are kept out of the project while it is replaced, so a
// new store starts with those that were shown.
class HeldLists {
 public:
  explicit HeldLists(StoreProject& project)
      : regions_(std::exchange(project.regions, nullptr)),
        regionsTail_(std::exchange(project.regionsTail, nullptr)),
        cards_(std::exchange(project.acceptedCards, nullptr)) {
    project.currentRegion = nullptr;
    project.currentCard = nullptr;
  }

  // Those that came with a project that was there already go.
  void putBack(Program& program) const {
    StoreProject& project = program.project;
    FreightRegionListFree(project.regions);
    CardEntryListFree(project.acceptedCards);
    project.currentRegion = nullptr;
    project.currentCard = nullptr;
    project.regions = regions_;
    project.regionsTail = regionsTail_;
    project.acceptedCards = cards_;
    program.view.loadFreightList();
    program.view.loadCardList();
  }

 private:
  FreightRegion* regions_;
  FreightRegion* regionsTail_;
  CardEntry* cards_;
};

Scheme* schemeOfNewStore(AppConfig& config) {
  if (config.currentStyle == nullptr) config.currentStyle = config.schemeStyles;
  if (config.currentScheme == nullptr && config.schemeStyles != nullptr) {
    config.currentScheme = config.schemeStyles->schemes;
  }
  return config.currentScheme;
}

// Deliberate: while the project is made there is no current scheme, so its set is copied afterwards. A folder that
// holds a project opens it, and what follows is done to that one.
void makeProject(Program& program, const WizardState& state) {
  StoreProject& project = program.project;
  Scheme* scheme = schemeOfNewStore(program.config);
  const HeldLists held(project);
  ProjectClose(program);
  project.projectFile.release();
  project.storeTitle = state.workTitle;
  project.projectScheme = scheme;
  ProjectCreate(program, state.workFolder.get());
  held.putBack(program);
}

// Deliberate: messages of the project before stay, also over what was typed.
void takeMessages(StoreProject& project, const WizardState& state) {
  if (!project.orderMessage.isSet()) project.orderMessage = state.workOrderMessage;
  if (!project.confirmMessage.isSet()) project.confirmMessage = state.workConfirmMessage;
}

void rebuildTree(Program& program) {
  program.view.clearTree();
  program.view.fillTree();
  program.view.loadItemList(program.project.currentNode);
}

void makeStore(Program& program, const WizardState& state) {
  makeProject(program, state);
  takeMessages(program.project, state);
  AssignDefaultTemplates(program.project.root);
  CopyTemplateSet(program, program.project.projectScheme);
  rebuildTree(program);
  SetDirty(program, 1);
  program.view.loadCardList();
}

// Without a first name none is taken over; else the next run loads them anew.
void takeMethodNames(StoreProject& project, WizardState& state) {
  if (!state.workMethodName[0].isSet()) return;
  project.methodName = state.workMethodName;
  for (Text& name : state.workMethodName) name.release();
}

void takeTax(TaxSettings& tax, const WizardState& state) {
  tax.freightTaxRate = state.workFreightTaxRate;
  tax.taxEnabled = state.workTaxEnabled;
  tax.taxOption = state.workTaxOption;
}

// However a run ends.
void leave(Program& program) {
  if (program.project.variables == nullptr) {
    MakeDefaultVariable(program.project);
    program.view.loadVariableList();
  }
  program.screen.postCommand(Command::ResizeMainWindow);
  program.view.loadSchemeLists();
}

}  // namespace

void WizardEnd(Program& program, WizardState& state) {
  StoreProject& project = program.project;
  const WizardMode mode = state.mode;
  if (mode == WizardMode::NewStore) makeStore(program, state);
  if (mode == WizardMode::NewStore || mode == WizardMode::Freight) {
    ApplyFreightCalculationMethod(project, state.workCalcMethod, state.workPrice.view());
  }
  takeMethodNames(project, state);
  NormalizeRegionTax(project.regions, state.workTaxEnabled, state.workTaxOption);
  if (mode == WizardMode::NewStore || mode == WizardMode::Tax) takeTax(project.tax, state);
  program.view.loadFreightList();
  if (!project.currency.isSet()) project.currency.assign("$");
  SetDirty(program, 1);
  program.view.loadForm();
  leave(program);
}

void WizardCancel(Program& program, WizardState& state) {
  state.page = WizardPage::Cancelled;
  leave(program);
}

}  // namespace varlo
