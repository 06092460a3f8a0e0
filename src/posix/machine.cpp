#include "platform/machine.h"

#include "core/charset.h"
#include "core/process_clipboard.h"
#include "posix/posix_clock.h"
#include "posix/posix_files.h"

namespace varlo {

Machine MakeMachine(const std::string& folder) {
  return {.files = std::make_unique<PosixFiles>(folder),
          .clock = std::make_unique<PosixClock>(),
          .clipboard = std::make_unique<ProcessClipboard>()};
}

std::string TextFromArgument(std::string_view argument) { return BytesFromUtf8(argument); }

std::string TerminalText(std::string_view text) { return Utf8FromBytes(text); }

}  // namespace varlo
