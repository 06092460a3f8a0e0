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

}  // namespace varlo
