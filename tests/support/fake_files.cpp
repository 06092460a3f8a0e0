#include "tests/support/fake_files.h"

#include <algorithm>
#include <cstring>

#include "core/text/charset.h"
#include "core/text/paths.h"

namespace varlo::test {
namespace {

std::string parentOf(const std::string& key) {
  const std::size_t slash = key.rfind('\\');
  return slash == std::string::npos ? std::string() : key.substr(0, slash);
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), LowerByte);
  return text;
}

bool matches(std::string_view name, std::string_view mask) {
  if (mask.empty()) return name.empty();
  if (mask[0] == '*') return matches(name, mask.substr(1)) || (!name.empty() && matches(name.substr(1), mask));
  if (name.empty()) return mask == ".*" || mask == ".";
  return (mask[0] == '?' || mask[0] == name[0]) && matches(name.substr(1), mask.substr(1));
}

// The path without "." and "..", which lead from folder to folder but never above the drive.
std::string withoutDots(const std::string& path) {
  std::string plain;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t end = std::min(path.find('\\', at), path.size());
    const std::string part = path.substr(at, end - at);
    at = end + 1;
    if (part == "..") {
      plain.resize(std::max<std::size_t>(parentOf(plain).size(), 2));
    } else if (part != ".") {
      plain += plain.empty() ? part : "\\" + part;
    }
  }
  return plain;
}

}  // namespace

std::string FakeFiles::full(std::string_view path) {
  std::string name(path);
  std::replace(name.begin(), name.end(), '/', '\\');
  if (name.size() < 2 || name[1] != ':') name = "C:\\Varlo\\" + name;
  name = SingleBackSlashes(name);
  while (name.ends_with('\\')) name.pop_back();
  return withoutDots(name);
}

std::string FakeFiles::keyOf(std::string_view path) { return lower(full(path)); }

bool FakeFiles::folderExists(const std::string& key) const { return folders_.contains(key); }

bool FakeFiles::blocked(const std::string& operation) {
  log.push_back(operation);
  return shallFail && shallFail(operation);
}

void FakeFiles::put(std::string_view path, std::string_view content) {
  const std::string key = keyOf(path);
  putFolder(parentOf(full(path)));
  files_[key] = {full(path), std::string(content)};
}

void FakeFiles::putFolder(std::string_view path) {
  for (std::string key = keyOf(path); !key.empty(); key = parentOf(key)) folders_.insert(key);
}

std::optional<std::string> FakeFiles::content(std::string_view path) const {
  const auto found = files_.find(keyOf(path));
  return found == files_.end() ? std::nullopt : std::optional(found->second.content);
}

std::vector<std::string> FakeFiles::names() const {
  std::vector<std::string> all;
  for (const auto& [key, file] : files_) all.push_back(file.name);
  return all;
}

bool FakeFiles::failed(FileError kind) {
  lastError_ = kind;
  return false;
}

FileHandle FakeFiles::openRead(std::string_view path) {
  const std::string key = keyOf(path);
  if (!files_.contains(key)) return kNoFile;
  open_[nextHandle_] = {key, 0};
  return nextHandle_++;
}

FileHandle FakeFiles::create(std::string_view path) {
  const std::string key = keyOf(path);
  if (blocked("create " + full(path)) || folders_.contains(key) || !folderExists(parentOf(key))) return kNoFile;
  if (!files_.contains(key)) files_[key].name = full(path);
  files_[key].content.clear();
  open_[nextHandle_] = {key, 0};
  return nextHandle_++;
}

std::size_t FakeFiles::read(FileHandle file, void* data, std::size_t size) {
  Open& open = open_.at(file);
  const std::string& content = files_.at(open.key).content;
  const std::size_t got = std::min(size, content.size() - std::min(open.position, content.size()));
  if (got > 0) std::memcpy(data, content.data() + open.position, got);
  open.position += got;
  return got;
}

std::size_t FakeFiles::write(FileHandle file, const void* data, std::size_t size) {
  Open& open = open_.at(file);
  File& target = files_.at(open.key);
  if (blocked("write " + target.name)) return 0;
  if (target.content.size() < open.position + size) target.content.resize(open.position + size);
  std::copy_n(static_cast<const char*>(data), size,
              target.content.begin() + static_cast<std::ptrdiff_t>(open.position));
  open.position += size;
  return size;
}

std::int64_t FakeFiles::seek(FileHandle file, std::int64_t offset, SeekFrom from) {
  Open& open = open_.at(file);
  const auto size = static_cast<std::int64_t>(files_.at(open.key).content.size());
  const std::int64_t base = from == SeekFrom::Start ? 0
                            : from == SeekFrom::End ? size
                                                    : static_cast<std::int64_t>(open.position);
  if (base + offset < 0) return -1;
  open.position = static_cast<std::size_t>(base + offset);
  return base + offset;
}

void FakeFiles::close(FileHandle file) { open_.erase(file); }

bool FakeFiles::copy(std::string_view from, std::string_view to, bool overwrite) {
  const std::string source = keyOf(from);
  const std::string target = keyOf(to);
  if (blocked("copy " + full(from) + " to " + full(to))) return failed(failure);
  if (folders_.contains(target)) return failed(FileError::AccessDenied);
  if (!folderExists(parentOf(target))) return failed(FileError::PathNotFound);
  if (!files_.contains(source) || source == target) return failed(FileError::Other);
  if (files_.contains(target) && !overwrite) return failed(FileError::Other);
  if (!files_.contains(target)) files_[target].name = full(to);
  files_[target].content = files_[source].content;
  return true;
}

bool FakeFiles::move(std::string_view from, std::string_view to) {
  const std::string source = keyOf(from);
  const std::string target = keyOf(to);
  if (blocked("move " + full(from) + " to " + full(to))) return false;
  if (!files_.contains(source) || files_.contains(target) || !folderExists(parentOf(target))) return false;
  files_[target] = {full(to), files_[source].content};
  files_.erase(source);
  return true;
}

bool FakeFiles::remove(std::string_view path) {
  return !blocked("remove " + full(path)) && files_.erase(keyOf(path)) > 0;
}

MakeFolderResult FakeFiles::makeFolder(std::string_view path) {
  const std::string key = keyOf(path);
  if (blocked("makeFolder " + full(path))) return MakeFolderResult::Failed;
  if (folders_.contains(key) || files_.contains(key)) return MakeFolderResult::Exists;
  if (!folderExists(parentOf(key))) return MakeFolderResult::Failed;
  folders_.insert(key);
  return MakeFolderResult::Made;
}

std::vector<FoundFile> FakeFiles::search(std::string_view pattern) {
  const std::string key = keyOf(pattern);
  const std::string folder = parentOf(key);
  const std::string mask = key.substr(folder.size() + 1);
  std::vector<FoundFile> found;
  for (const auto& [name, file] : files_) {
    if (parentOf(name) != folder || !matches(name.substr(folder.size() + 1), mask)) continue;
    found.push_back({std::string(PathName(file.name)), false, static_cast<std::uint32_t>(file.content.size())});
  }
  for (const std::string& name : folders_) {
    if (parentOf(name) == folder && matches(name.substr(folder.size() + 1), mask)) {
      found.push_back({name.substr(folder.size() + 1), true, 0});
    }
  }
  std::sort(found.begin(), found.end(),
            [](const FoundFile& a, const FoundFile& b) { return lower(a.name) < lower(b.name); });
  return found;
}

}  // namespace varlo::test
