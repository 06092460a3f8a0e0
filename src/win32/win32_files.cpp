#include "win32/win32_files.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "core/text/charset.h"

namespace varlo {
namespace {

std::string zeroTerminated(std::string_view path) { return std::string(path); }

HANDLE handleOf(FileHandle file) { return reinterpret_cast<HANDLE>(file); }

// One call moves at most 4 GiB less a byte.
DWORD callSize(std::size_t size) { return static_cast<DWORD>(std::min<std::size_t>(size, 0x7FFFFFFF)); }

bool before(const FoundFile& left, const FoundFile& right) {
  return std::lexicographical_compare(left.name.begin(), left.name.end(), right.name.begin(), right.name.end(),
                                      [](char a, char b) { return LowerByte(a) < LowerByte(b); });
}

}  // namespace

bool Win32Files::done(int result) {
  if (result == 0) error_ = ::GetLastError();
  return result != 0;
}

FileHandle Win32Files::openRead(std::string_view path) {
  const HANDLE file = ::CreateFileA(zeroTerminated(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  done(file != INVALID_HANDLE_VALUE);
  return reinterpret_cast<FileHandle>(file);
}

FileHandle Win32Files::create(std::string_view path) {
  const HANDLE file = ::CreateFileA(zeroTerminated(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  done(file != INVALID_HANDLE_VALUE);
  return reinterpret_cast<FileHandle>(file);
}

std::size_t Win32Files::read(FileHandle file, void* data, std::size_t size) {
  DWORD got = 0;
  return done(::ReadFile(handleOf(file), data, callSize(size), &got, nullptr)) ? got : 0;
}

std::size_t Win32Files::write(FileHandle file, const void* data, std::size_t size) {
  std::size_t written = 0;
  while (written < size) {
    DWORD put = 0;
    const char* rest = static_cast<const char*>(data) + written;
    if (!done(::WriteFile(handleOf(file), rest, callSize(size - written), &put, nullptr)) || put == 0) break;
    written += put;
  }
  return written;
}

std::int64_t Win32Files::seek(FileHandle file, std::int64_t offset, SeekFrom from) {
  const DWORD origin = from == SeekFrom::Start ? FILE_BEGIN : from == SeekFrom::Current ? FILE_CURRENT : FILE_END;
  LARGE_INTEGER distance;
  LARGE_INTEGER position;
  distance.QuadPart = offset;
  return done(::SetFilePointerEx(handleOf(file), distance, &position, origin)) ? position.QuadPart : -1;
}

void Win32Files::close(FileHandle file) {
  if (file != kNoFile) ::CloseHandle(handleOf(file));
}

bool Win32Files::copy(std::string_view from, std::string_view to, bool overwrite) {
  return done(::CopyFileA(zeroTerminated(from).c_str(), zeroTerminated(to).c_str(), overwrite ? FALSE : TRUE));
}

bool Win32Files::move(std::string_view from, std::string_view to) {
  return done(::MoveFileA(zeroTerminated(from).c_str(), zeroTerminated(to).c_str()));
}

bool Win32Files::remove(std::string_view path) { return done(::DeleteFileA(zeroTerminated(path).c_str())); }

MakeFolderResult Win32Files::makeFolder(std::string_view path) {
  if (done(::CreateDirectoryA(zeroTerminated(path).c_str(), nullptr))) return MakeFolderResult::Made;
  return error_ == ERROR_ALREADY_EXISTS ? MakeFolderResult::Exists : MakeFolderResult::Failed;
}

std::vector<FoundFile> Win32Files::search(std::string_view pattern) {
  std::vector<FoundFile> found;
  WIN32_FIND_DATAA entry;
  const HANDLE search = ::FindFirstFileA(zeroTerminated(pattern).c_str(), &entry);
  if (!done(search != INVALID_HANDLE_VALUE)) return found;
  do {
    const std::string_view name = entry.cFileName;
    if (name == "." || name == "..") continue;
    found.push_back(
        {std::string(name), (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0, entry.nFileSizeLow});
  } while (::FindNextFileA(search, &entry) != 0);
  ::FindClose(search);
  std::sort(found.begin(), found.end(), before);
  return found;
}

std::string Win32Files::workingFolder() {
  std::array<char, MAX_PATH + 1> path{};
  ::GetCurrentDirectoryA(static_cast<DWORD>(path.size()), path.data());
  std::string folder = path.data();
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

std::string Win32Files::nameOf(std::string_view hostPath) {
  std::array<char, 4 * MAX_PATH> path{};
  const DWORD length =
      ::GetFullPathNameA(zeroTerminated(hostPath).c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr);
  if (length == 0 || length >= path.size()) return std::string(hostPath);
  return path.data();
}

std::string Win32Files::errorText() {
  std::array<char, 512> text{};
  const DWORD length = ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error_,
                                        0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  return {text.data(), length};
}

FileError Win32Files::lastError() {
  if (error_ == ERROR_PATH_NOT_FOUND) return FileError::PathNotFound;
  return error_ == ERROR_ACCESS_DENIED ? FileError::AccessDenied : FileError::Other;
}

}  // namespace varlo
