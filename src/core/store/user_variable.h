// UserVariable: a "$" variable of the project, in a singly linked list.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/text/text.h"

namespace varlo {

struct StoreProject;

struct UserVariable {
  UserVariable* next = nullptr;
  Text name;                     // begins with "$"
  Text value;                    // may hold line ends
  std::uint16_t deleteMark = 0;  // kVariableDeleteMark: about to be removed
};

inline constexpr std::uint16_t kVariableDeleteMark = 65535;

// A zeroed variable: a new one for null, else the given one with its texts released.
UserVariable* UserVariableInit(UserVariable* variable);

// Copies name, value and deleteMark; the link of an existing destination stays, a new one has none.
UserVariable* UserVariableCopy(UserVariable* destination, const UserVariable& source);

// Releases the list from `head`, and clears each of the project's three references to variables that
// names a released one.
void UserVariableListFree(StoreProject& project, UserVariable* head);

// The project's variable number `number`, which it has, counted from 0.
[[nodiscard]] const UserVariable* UserVariableAt(const StoreProject& project, std::size_t number);

// Puts `variable` at the tail of the project's list.
void UserVariableAppend(StoreProject& project, UserVariable* variable);

// Gives a project without variables the one that every store starts with.
void MakeDefaultVariable(StoreProject& project);

// Puts `variable` behind the project's current one; at the head of an empty list, at the tail when none is current.
void UserVariableInsert(StoreProject& project, UserVariable* variable);

// Releases the marked variables. Where the head goes, the new head becomes current; where another current one goes,
// the one behind it that stays, else the one in front of it.
void UserVariablesDeleteMarked(StoreProject& project);

}  // namespace varlo
