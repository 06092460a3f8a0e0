#include "posix/posix_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/text/charset.h"
#include "core/text/open_file.h"
#include "posix/file_mask.h"

namespace varlo {
namespace {

constexpr mode_t kFileMode = 0666;
constexpr mode_t kFolderMode = 0777;

std::string currentFolder() {
  std::array<char, 4096> path;
  return ::getcwd(path.data(), path.size()) == nullptr ? "/" : path.data();
}

bool isFolder(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isSameFile(const std::string& left, const std::string& right) {
  struct stat a {};
  struct stat b {};
  return ::stat(left.c_str(), &a) == 0 && ::stat(right.c_str(), &b) == 0 && a.st_dev == b.st_dev &&
         a.st_ino == b.st_ino;
}

bool isWineRoot(std::string_view path) { return path.size() >= 2 && (path[0] | 0x20) == 'z' && path[1] == ':'; }

// Nothing is waited for: what has no other end yet fails, or is closed again for what it is.
int retryOpen(const std::string& path, int flags) {
  int descriptor = -1;
  do {
    descriptor = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, kFileMode);
  } while (descriptor < 0 && errno == EINTR);
  return descriptor;
}

}  // namespace

PosixFiles::PosixFiles(const std::string& folder) : folder_(folder.empty() ? currentFolder() : folder) {
  if (folder_[0] != '/') folder_ = currentFolder() + "/" + folder_;
  while (folder_.size() > 1 && folder_.back() == '/') folder_.pop_back();
}

std::string PosixFiles::hostPath(std::string_view path) const {
  if (isWineRoot(path)) path.remove_prefix(2);
  std::string host = Utf8FromBytes(path);
  std::replace(host.begin(), host.end(), '\\', '/');
  return host.starts_with('/') ? host : folder_ + "/" + host;
}

bool PosixFiles::failed(int error) {
  error_ = error;
  return false;
}

// The folder as it is spelt on disk; empty when it is not there.
std::string PosixFiles::findFolder(const std::string& path) {
  if (path.empty() || isFolder(path)) return path;
  std::string found;
  std::size_t at = 0;
  while (at < path.size()) {
    const std::size_t end = std::min(path.find('/', at + 1), path.size());
    const std::string part = path.substr(at, end - at);
    at = end;
    if (part == "/" || isFolder(found + part)) {
      if (part != "/") found += part;
      continue;
    }
    const std::string name = index_.find(found.empty() ? "/" : found, BytesFromUtf8(part.substr(1)));
    if (name.empty() || !isFolder(found + "/" + name)) return {};
    found += "/" + name;
  }
  return found;
}

PosixFiles::Place PosixFiles::find(std::string_view path) {
  std::string host = hostPath(path);
  while (host.size() > 1 && host.back() == '/') host.pop_back();
  if (::access(host.c_str(), F_OK) != 0) return findOther(std::move(host));
  const std::size_t slash = host.rfind('/');
  return {.folder = host.substr(0, slash), .name = host.substr(slash + 1), .exists = true};
}

// The place of a host path under which nothing is there as it is spelt.
PosixFiles::Place PosixFiles::findOther(std::string host) {
  while (host.size() > 1 && host.back() == '/') host.pop_back();
  const std::size_t slash = host.rfind('/');
  Place place{.folder = host.substr(0, slash), .name = host.substr(slash + 1)};
  const std::string wanted = BytesFromUtf8(place.name);
  std::string name;
  if (!index_.lookUp(slash == 0 ? "/" : place.folder, wanted, name)) {
    const std::string folder = findFolder(place.folder);
    if (folder.empty()) return place;
    place.folder = folder;
    name = index_.find(folder, wanted);
  }
  place.exists = !name.empty();
  if (place.exists) place.name = name;
  return place;
}

// Takes files alone: a pipe could be waited for without end, and a device read without one. Writing to a device
// that takes bytes one by one does end, and shows what a full disk does.
FileHandle PosixFiles::opened(int descriptor, bool forWriting) {
  if (descriptor < 0) {
    error_ = errno;
    return kNoFile;
  }
  struct stat status {};
  const bool known = ::fstat(descriptor, &status) == 0;
  if (known && (S_ISREG(status.st_mode) || (forWriting && S_ISCHR(status.st_mode)))) return descriptor;
  error_ = known && S_ISDIR(status.st_mode) ? EISDIR : ENXIO;
  ::close(descriptor);
  return kNoFile;
}

FileHandle PosixFiles::openRead(std::string_view path) {
  std::string host = hostPath(path);
  int descriptor = retryOpen(host, O_RDONLY);
  if (descriptor < 0 && errno == ENOENT) {
    const Place place = findOther(std::move(host));
    errno = ENOENT;
    if (place.exists) descriptor = retryOpen(place.path(), O_RDONLY);
  }
  return opened(descriptor, false);
}

FileHandle PosixFiles::create(std::string_view path) { return opened(openNew(path, O_TRUNC), true); }

FileHandle PosixFiles::createOver(std::string_view path) {
  if (overwritten_ >= 0) return create(path);
  const FileHandle file = opened(openNew(path, 0), true);
  overwritten_ = static_cast<int>(file);
  return file;
}

// Opens a file for writing, with `emptying` as a flag of the system. A file that was there before is opened
// at once; for any other the folder's names decide, since the one that is meant may be spelt in another case.
// The system itself lets nobody write to a folder.
int PosixFiles::openNew(std::string_view path, int emptying) {
  std::string host = hostPath(path);
  const std::size_t slash = host.rfind('/');
  const std::string_view name = std::string_view(host).substr(slash + 1);
  int descriptor = -1;
  if (index_.remembers(host.substr(0, slash), BytesFromUtf8(name), name)) {
    descriptor = retryOpen(host, O_WRONLY | emptying);
  }
  if (descriptor < 0) {
    const Place place = findOther(std::move(host));
    descriptor = retryOpen(place.path(), O_WRONLY | O_CREAT | emptying);
    if (descriptor >= 0 && !place.exists) index_.added(place.folder, place.name);
  }
  return descriptor;
}

std::size_t PosixFiles::read(FileHandle file, void* data, std::size_t size) {
  ssize_t got = 0;
  do {
    got = ::read(static_cast<int>(file), data, size);
  } while (got < 0 && errno == EINTR);
  if (got < 0) error_ = errno;
  return got < 0 ? 0 : static_cast<std::size_t>(got);
}

std::size_t PosixFiles::write(FileHandle file, const void* data, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t put = ::write(static_cast<int>(file), static_cast<const char*>(data) + done, size - done);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) error_ = errno;
    if (put <= 0) break;
    done += static_cast<std::size_t>(put);
  }
  return done;
}

std::int64_t PosixFiles::seek(FileHandle file, std::int64_t offset, SeekFrom from) {
  const int whence = from == SeekFrom::Start ? SEEK_SET : from == SeekFrom::Current ? SEEK_CUR : SEEK_END;
  const off_t position = ::lseek(static_cast<int>(file), offset, whence);
  if (position < 0) error_ = errno;
  return position;
}

void PosixFiles::close(FileHandle file) {
  if (file == kNoFile) return;
  const int descriptor = static_cast<int>(file);
  if (descriptor == overwritten_) {
    overwritten_ = -1;
    struct stat status {};
    const off_t end = ::lseek(descriptor, 0, SEEK_CUR);
    if (end >= 0 && ::fstat(descriptor, &status) == 0 && status.st_size > end && ::ftruncate(descriptor, end) != 0) {
      error_ = errno;
    }
  }
  ::close(descriptor);
}

bool PosixFiles::copy(std::string_view from, std::string_view to, bool overwrite) {
  const Place source = find(from);
  const Place target = find(to);
  if (!source.exists) return failed(ENOENT);
  if (target.exists && !overwrite) return failed(EEXIST);
  // A file onto itself fails, as on Windows, and must not be emptied.
  if (target.exists && isSameFile(source.path(), target.path())) return failed(EBUSY);
  OpenFile in(*this, openRead(from));
  if (!in.isOpen()) return false;
  OpenFile out(*this, create(to));
  if (!out.isOpen()) return false;
  std::array<char, 64 * 1024> block;
  while (const std::size_t got = read(in.handle(), block.data(), block.size())) {
    if (write(out.handle(), block.data(), got) != got) return false;
  }
  return true;
}

bool PosixFiles::move(std::string_view from, std::string_view to) {
  const Place source = find(from);
  const Place target = find(to);
  if (!source.exists) return failed(ENOENT);
  if (target.exists) return failed(EEXIST);
  if (::rename(source.path().c_str(), target.path().c_str()) != 0) return failed(errno);
  index_.removed(source.folder, source.name);
  index_.added(target.folder, target.name);
  return true;
}

bool PosixFiles::remove(std::string_view path) {
  const Place place = find(path);
  if (!place.exists) return failed(ENOENT);
  if (::unlink(place.path().c_str()) != 0) return failed(errno);
  index_.removed(place.folder, place.name);
  return true;
}

MakeFolderResult PosixFiles::makeFolder(std::string_view path) {
  const Place place = find(path);
  if (place.exists) {
    error_ = EEXIST;
    return MakeFolderResult::Exists;
  }
  if (::mkdir(place.path().c_str(), kFolderMode) != 0) {
    error_ = errno;
    return MakeFolderResult::Failed;
  }
  index_.added(place.folder, place.name);
  return MakeFolderResult::Made;
}

std::vector<FoundFile> PosixFiles::search(std::string_view pattern) {
  const std::string host = hostPath(pattern);
  const std::size_t slash = host.rfind('/');
  const std::string folder = findFolder(host.substr(0, slash));
  const std::string mask = BytesFromUtf8(host.substr(slash + 1));
  std::vector<FoundFile> found;
  DIR* directory = folder.empty() ? nullptr : ::opendir(folder.c_str());
  if (directory == nullptr) {
    error_ = ENOENT;
    return found;
  }
  while (const dirent* entry = ::readdir(directory)) {
    const std::string_view hostName = entry->d_name;
    const std::string name = BytesFromUtf8(hostName);
    struct stat status {};
    if (hostName == "." || hostName == ".." || !MatchesMask(name, mask)) continue;
    if (::stat((folder + "/" + entry->d_name).c_str(), &status) != 0) continue;
    found.push_back({name, S_ISDIR(status.st_mode), static_cast<std::uint32_t>(status.st_size)});
  }
  ::closedir(directory);
  std::sort(found.begin(), found.end(), [](const FoundFile& left, const FoundFile& right) {
    return std::lexicographical_compare(left.name.begin(), left.name.end(), right.name.begin(), right.name.end(),
                                        [](char a, char b) { return LowerByte(a) < LowerByte(b); });
  });
  return found;
}

std::string PosixFiles::workingFolder() { return folder_ == "/" ? std::string() : nameOf(folder_); }

std::string PosixFiles::nameOf(std::string_view hostPath) {
  const bool absolute = hostPath.starts_with('/');
  std::string name = BytesFromUtf8(absolute ? std::string(hostPath) : folder_ + "/" + std::string(hostPath));
  std::replace(name.begin(), name.end(), '/', '\\');
  return name;
}

std::string PosixFiles::errorText() { return std::strerror(error_); }

FileError PosixFiles::lastError() {
  switch (error_) {
    case ENOENT:
    case ENOTDIR:
      return FileError::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:  // Windows denies the access to a folder that is opened as a file
      return FileError::AccessDenied;
    default:
      return FileError::Other;
  }
}

}  // namespace varlo
