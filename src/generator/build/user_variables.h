// The check of the names that an owner gave to variables.
#pragma once

#include <string_view>

namespace varlo {

struct Generator;

// Logs and counts an error for each variable of the project whose name is illegal; such a variable is
// applied all the same. Gives how many there are.
int CheckUserVariables(Generator& generator);

// Whether a variable may not have this name: an empty one, one that is any part of the list of reserved
// names, and one that holds a name which is replaced before the variables are.
[[nodiscard]] bool IsIllegalVariableName(std::string_view name);

}  // namespace varlo
