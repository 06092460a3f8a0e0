// The seams of the machine that the program was built for, for the code that starts it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace varlo {

struct Machine {
  std::unique_ptr<Files> files;
  std::unique_ptr<Clock> clock;
  std::unique_ptr<Clipboard> clipboard;
};

// The machine, with `folder`, as its user spells it, as working folder; empty for the current one.
[[nodiscard]] Machine MakeMachine(const std::string& folder);

// An argument of the command line as a text of the program.
[[nodiscard]] std::string TextFromArgument(std::string_view argument);

// A text of the program as the machine's terminal shows it.
[[nodiscard]] std::string TerminalText(std::string_view text);

// Whether messages on standard error are seen by a person right now.
[[nodiscard]] bool ErrorsGoToTerminal();

// Shows an address, or a file by its full name, in the browser `program`; the machine's own for an empty
// one. False when it can't be started.
[[nodiscard]] bool StartBrowser(Machine& machine, const std::string& program, const std::string& address);

}  // namespace varlo
