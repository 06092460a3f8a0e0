#include "platform/machine.h"

#include <unistd.h>

#include <utility>

#include "core/program/process_clipboard.h"
#include "core/text/charset.h"
#include "posix/posix_browser.h"
#include "posix/posix_clock.h"
#include "posix/posix_files.h"

namespace varlo {

Machine MakeMachine(const std::string& folder) {
  auto files = std::make_unique<PosixFiles>(folder);
  auto browsers = std::make_unique<PosixBrowser>(*files);
  return {.files = std::move(files),
          .clock = std::make_unique<PosixClock>(),
          .clipboard = std::make_unique<ProcessClipboard>(),
          .browsers = std::move(browsers)};
}

std::string TextFromArgument(std::string_view argument) { return BytesFromUtf8(argument); }

std::string TerminalText(std::string_view text) { return Utf8FromBytes(text); }

bool ErrorsGoToTerminal() { return ::isatty(STDERR_FILENO) == 1; }

}  // namespace varlo
