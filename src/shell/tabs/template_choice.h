// What the Load and Default buttons of the Template, Order Form and Confirmation tabs ask the user.
#pragma once

#include <optional>
#include <string>

namespace varlo {

struct Program;

// The template file that the user wants to load; none when it was left.
[[nodiscard]] std::optional<std::string> chooseTemplateFile(Program& program);

// Whether a template may be replaced by the shipped one.
[[nodiscard]] bool askForReset(Program& program);

}  // namespace varlo
