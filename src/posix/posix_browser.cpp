#include "posix/posix_browser.h"

#include <spawn.h>
#include <unistd.h>

#include <array>

#include "core/text/charset.h"
#include "core/text/open_file.h"
#include "posix/posix_files.h"

namespace varlo {

bool PosixBrowser::start(const std::string& program, const std::string& argument) {
  // A file, such as one that the desktop program under Wine names by "Z:", or else a word for the system itself.
  const auto hostName = [&](const std::string& name) {
    return FileExists(files_, name) == 1 ? files_.hostPathOf(name) : Utf8FromBytes(name);
  };
  std::string browser = program.empty() ? "xdg-open" : hostName(program);
  std::string target = hostName(argument);
  const std::array<char*, 3> arguments{browser.data(), target.data(), nullptr};
  pid_t child = 0;
  return ::posix_spawnp(&child, browser.c_str(), nullptr, nullptr, arguments.data(), environ) == 0;
}

}  // namespace varlo
