#include "platform/machine.h"

#include <spawn.h>
#include <unistd.h>

#include <array>

#include "core/charset.h"
#include "core/open_file.h"
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

bool ErrorsGoToTerminal() { return ::isatty(STDERR_FILENO) == 1; }

bool StartBrowser(Machine& machine, const std::string& program, const std::string& address) {
  const bool isFile = FileExists(*machine.files, address) == 1;
  auto& files = static_cast<PosixFiles&>(*machine.files);
  std::string browser = program.empty() ? "xdg-open" : Utf8FromBytes(program);
  std::string target = isFile ? files.hostPathOf(address) : Utf8FromBytes(address);
  const std::array<char*, 3> arguments{browser.data(), target.data(), nullptr};
  pid_t child = 0;
  return ::posix_spawnp(&child, browser.c_str(), nullptr, nullptr, arguments.data(), environ) == 0;
}

}  // namespace varlo
