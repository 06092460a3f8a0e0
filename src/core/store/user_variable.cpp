#include "core/store/user_variable.h"

#include "core/store/record.h"
#include "core/store/store_project.h"

namespace varlo {

UserVariable* UserVariableInit(UserVariable* variable) { return RecordInit(variable); }

UserVariable* UserVariableCopy(UserVariable* destination, const UserVariable& source) {
  if (destination == nullptr) destination = UserVariableInit(nullptr);
  destination->name = source.name;
  destination->value = source.value;
  destination->deleteMark = source.deleteMark;
  return destination;
}

void UserVariableListFree(StoreProject& project, UserVariable* head) {
  RecordListFree(head, [&](UserVariable& variable) {
    if (project.currentVariable == &variable) project.currentVariable = nullptr;
    if (project.variables == &variable) project.variables = nullptr;
    if (project.variablesTail == &variable) project.variablesTail = nullptr;
  });
}

const UserVariable* UserVariableAt(const StoreProject& project, std::size_t number) {
  const UserVariable* variable = project.variables;
  for (; number > 0; --number) variable = variable->next;
  return variable;
}

void UserVariableAppend(StoreProject& project, UserVariable* variable) {
  (project.variablesTail == nullptr ? project.variables : project.variablesTail->next) = variable;
  project.variablesTail = variable;
}

void UserVariableInsert(StoreProject& project, UserVariable* variable) {
  UserVariable* place = project.currentVariable;
  if (place == nullptr || place == project.variablesTail) return UserVariableAppend(project, variable);
  variable->next = place->next;
  place->next = variable;
}

void UserVariablesDeleteMarked(StoreProject& project) {
  bool currentGone = false;  // and none behind it has been found yet
  UserVariable* kept = nullptr;
  for (UserVariable** link = &project.variables; *link != nullptr;) {
    UserVariable* variable = *link;
    if (variable->deleteMark != kVariableDeleteMark) {
      if (currentGone) project.currentVariable = variable;
      currentGone = false;
      kept = variable;
      link = &variable->next;
      continue;
    }
    // Deliberate: a new head becomes current, whichever was.
    if (kept == nullptr || project.currentVariable == variable) {
      project.currentVariable = nullptr;
      currentGone = true;
    }
    *link = variable->next;
    delete variable;
  }
  if (currentGone) project.currentVariable = kept;
  project.variablesTail = kept;
}

void MakeDefaultVariable(StoreProject& project) {
  if (project.variables != nullptr) return;
  UserVariable* copyright = UserVariableInit(nullptr);
  copyright->name.assign("$COPYRIGHT");
  copyright->value.assign(
      "Copyright \xA9"
      "2000");
  UserVariableAppend(project, copyright);
  project.currentVariable = copyright;
}

}  // namespace varlo
