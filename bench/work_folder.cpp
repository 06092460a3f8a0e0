#include "bench/work_folder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <unistd.h>

namespace varlo::bench {
namespace {

constexpr const char* kMemoryFolder = "/dev/shm";

std::string defaultParent() {
  if (::access(kMemoryFolder, W_OK | X_OK) == 0) return kMemoryFolder;
  return std::filesystem::temp_directory_path().string();
}

}  // namespace

WorkFolder::WorkFolder(const std::string& parent)
    : path_((parent.empty() ? defaultParent() : parent) + "/varlo-XXXXXX") {
  if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("No folder could be made as " + path_ + ".");
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace varlo::bench
