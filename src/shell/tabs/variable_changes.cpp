#include "shell/tabs/variable_changes.h"

#include "core/program/program.h"
#include "core/store/user_variable.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"

namespace varlo {

void newVariable(Shell& shell) {
  StoreProject& project = shell.program.project;
  UserVariable* variable = UserVariableInit(nullptr);
  variable->name.assign("$NEW");
  variable->value.assign("New Variable");
  UserVariableAppend(project, variable);
  project.currentVariable = variable;
  loadForm(shell);
  shell.program.view.refreshCommandStates();
  shell.program.view.loadVariableList();
  SetDirty(shell.program, 1);
}

void copyVariable(Shell& shell) {
  const UserVariable* variable = shell.program.project.currentVariable;
  if (variable == nullptr) return;
  shell.variableClipboard.reset(UserVariableCopy(nullptr, *variable));
}

void pasteVariable(Shell& shell) {
  if (shell.variableClipboard == nullptr) return;
  StoreProject& project = shell.program.project;
  UserVariable* variable = UserVariableCopy(nullptr, *shell.variableClipboard);
  UserVariableInsert(project, variable);
  project.currentVariable = variable;
  shell.program.view.loadVariableList();
  loadForm(shell);
  SetDirty(shell.program, 1);
}

void deleteVariables(Shell& shell, const std::function<bool(int row)>& isSelected) {
  StoreProject& project = shell.program.project;
  int row = 0;
  for (UserVariable* variable = project.variables; variable != nullptr; variable = variable->next) {
    if (isSelected(row++)) variable->deleteMark = kVariableDeleteMark;
  }
  UserVariablesDeleteMarked(project);
  shell.program.view.loadVariableList();
  loadForm(shell);
  SetDirty(shell.program, 1);
}

}  // namespace varlo
