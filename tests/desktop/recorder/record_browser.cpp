// Stands in for a web browser: appends what it was started with to "recorded.txt" beside itself.

#include <windows.h>

#include <array>
#include <cstdio>
#include <string>

int main() {
  std::array<char, MAX_PATH> path{};
  ::GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
  std::string file = path.data();
  file.erase(file.rfind('\\') + 1).append("recorded.txt");
  std::FILE* out = std::fopen(file.c_str(), "ab");
  if (out == nullptr) return 1;
  std::fprintf(out, "%s\n", ::GetCommandLineA());
  std::fclose(out);
  return 0;
}
