// The seams of the machine that the program was built for, for the code that starts it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/browser_system.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace varlo {

struct Machine {
  std::unique_ptr<Files> files;
  std::unique_ptr<Clock> clock;
  std::unique_ptr<Clipboard> clipboard;
  std::unique_ptr<BrowserSystem> browsers;
};

// The machine, with `folder`, as its user spells it, as working folder; empty for the current one.
[[nodiscard]] Machine MakeMachine(const std::string& folder);

// An argument of the command line as a text of the program.
[[nodiscard]] std::string TextFromArgument(std::string_view argument);

// A text of the program as the machine's terminal shows it.
[[nodiscard]] std::string TerminalText(std::string_view text);

// Whether messages on standard error are seen by a person right now.
[[nodiscard]] bool ErrorsGoToTerminal();

}  // namespace varlo
