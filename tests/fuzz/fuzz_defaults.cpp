// Gives the fuzzer what the command line does not tell: the target's seeds, its dictionary, and the limits that its
// inputs need.
#include "tests/fuzz/fuzz_defaults.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

bool hasFlag(const Arguments& arguments, const std::string& flag) {
  return std::any_of(arguments.begin(), arguments.end(),
                     [&](const std::string& argument) { return argument.rfind(flag + "=", 0) == 0; });
}

// An input or a folder of them, in contrast to a flag.
bool hasInput(const Arguments& arguments) {
  return std::any_of(arguments.begin() + 1, arguments.end(),
                     [](const std::string& argument) { return argument.rfind('-', 0) != 0; });
}

void addFlag(Arguments& arguments, const std::string& flag, const std::string& value) {
  if (!hasFlag(arguments, flag)) arguments.push_back(flag + "=" + value);
}

// The seeds serve as read-only inputs: in the place of a corpus folder the new inputs would go there.
std::string seedList() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(varlo::fuzz::kSeeds)) {
    if (entry.is_regular_file()) files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  std::string list;
  for (const std::string& file : files) list += (list.empty() ? "" : ",") + file;
  return list;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static Arguments arguments(*argv, *argv + *argc);
  addFlag(arguments, "-dict", varlo::fuzz::kDictionary);
  addFlag(arguments, "-max_len", "24576");
  addFlag(arguments, "-timeout", "10");
  addFlag(arguments, "-rss_limit_mb", "4096");
  if (!hasInput(arguments)) addFlag(arguments, "-seed_inputs", seedList());
  static std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  *argc = static_cast<int>(pointers.size());
  pointers.push_back(nullptr);
  *argv = pointers.data();
  return 0;
}
