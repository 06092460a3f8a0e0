#include "posix/posix_browser.h"

#include <spawn.h>
#include <unistd.h>

#include <array>

#include "core/charset.h"
#include "core/open_file.h"
#include "posix/posix_files.h"

namespace varlo {

bool PosixBrowser::start(const std::string& program, const std::string& argument) {
  const bool isFile = FileExists(files_, argument) == 1;
  std::string browser = program.empty() ? "xdg-open" : Utf8FromBytes(program);
  std::string target = isFile ? files_.hostPathOf(argument) : Utf8FromBytes(argument);
  const std::array<char*, 3> arguments{browser.data(), target.data(), nullptr};
  pid_t child = 0;
  return ::posix_spawnp(&child, browser.c_str(), nullptr, nullptr, arguments.data(), environ) == 0;
}

}  // namespace varlo
