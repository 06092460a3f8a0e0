#include "core/program/program.h"

#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/freight_record.h"
#include "core/store/user_variable.h"

namespace varlo {

Program::~Program() {
  UserVariableListFree(project, project.variables);
  CardEntryListFree(project.acceptedCards);
  FreightRegionListFree(project.regions);
  SchemeListFree(*this, config.schemeStyles);
  CardEntryListFree(config.cardCatalogue);
  FreightRegionListFree(config.regionCatalogue);
}

void SetDirty(Program& program, int flag) {
  program.project.dirty = flag;
  program.view.refreshCommandStates();
}

void ErrorBox(Program& program, std::string_view text) {
  program.screen.messageBox({.text = text, .title = "Error"});
}

int WaitCursorOn(Program& program) {
  if (program.waitCursorShown) return 0;
  program.waitCursorShown = true;
  program.screen.setWaitCursor(true);
  return 1;
}

int WaitCursorOff(Program& program) {
  if (!program.waitCursorShown) return 0;
  program.waitCursorShown = false;
  program.screen.setWaitCursor(false);
  return 1;
}

int ClipboardPutText(Program& program, std::string_view text) { return program.clipboard.putText(text) ? 1 : 0; }

}  // namespace varlo
