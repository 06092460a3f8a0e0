// varlo.exe: the desktop program. It works in the folder that it lies in, which is the installation.

#include <windows.h>

#include <array>
#include <string>

#include "win32/desktop_program.h"

namespace {

std::string folderOfProgram() {
  std::array<char, 4 * MAX_PATH> path{};
  const DWORD size = ::GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
  const std::string program(path.data(), size);
  return program.substr(0, program.find_last_of('\\'));
}

}  // namespace

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*arguments*/, int /*show*/) {
  varlo::Machine machine = varlo::MakeMachine(folderOfProgram());
  return varlo::RunDesktop(machine);
}
