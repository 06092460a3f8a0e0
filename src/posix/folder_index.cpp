#include "posix/folder_index.h"

#include <algorithm>

#include <dirent.h>

#include "core/text/charset.h"

namespace varlo {
namespace {

std::string folded(std::string_view bytes) {
  std::string key(bytes);
  std::transform(key.begin(), key.end(), key.begin(), LowerByte);
  return key;
}

bool same(const timespec& left, const timespec& right) {
  return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

}  // namespace

bool FolderIndex::changeTime(const std::string& folder, timespec& time) {
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return false;
  time = status.st_mtim;
  return true;
}

void FolderIndex::readNames(const std::string& folder, Folder& entry) {
  entry.names.clear();
  DIR* directory = ::opendir(folder.c_str());
  if (directory == nullptr) return;
  while (const dirent* found = ::readdir(directory)) {
    entry.names.try_emplace(folded(BytesFromUtf8(found->d_name)), found->d_name);
  }
  ::closedir(directory);
}

std::string FolderIndex::find(const std::string& folder, std::string_view name) {
  std::string found;
  return lookUp(folder, name, found) ? found : std::string();
}

bool FolderIndex::lookUp(const std::string& folder, std::string_view name, std::string& result) {
  timespec now{};
  result.clear();
  if (!changeTime(folder, now)) return false;
  const auto [at, isNew] = folders_.try_emplace(folder);
  Folder& entry = at->second;
  if (isNew || !same(entry.changed, now)) {
    entry.changed = now;
    readNames(folder, entry);
  }
  const auto found = entry.names.find(folded(name));
  if (found != entry.names.end()) result = found->second;
  return true;
}

bool FolderIndex::remembers(const std::string& folder, std::string_view name, std::string_view hostName) const {
  const auto at = folders_.find(folder);
  if (at == folders_.end()) return false;
  const auto found = at->second.names.find(folded(name));
  return found != at->second.names.end() && found->second == hostName;
}

// The index of a folder that is known, and brought up to its present change time: the change was ours.
FolderIndex::Folder* FolderIndex::known(const std::string& folder) {
  const auto at = folders_.find(folder);
  if (at == folders_.end()) return nullptr;
  changeTime(folder, at->second.changed);
  return &at->second;
}

void FolderIndex::added(const std::string& folder, std::string_view hostName) {
  Folder* entry = known(folder);
  if (entry != nullptr) entry->names.try_emplace(folded(BytesFromUtf8(hostName)), hostName);
}

void FolderIndex::removed(const std::string& folder, std::string_view hostName) {
  Folder* entry = known(folder);
  if (entry == nullptr) return;
  const auto at = entry->names.find(folded(BytesFromUtf8(hostName)));
  if (at != entry->names.end() && at->second == hostName) entry->names.erase(at);
}

}  // namespace varlo
