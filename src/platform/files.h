// What the program asks of a file system. Paths are 8-bit strings with back slashes, compared without
// regard to letter case; a relative path is taken against the working folder. How a machine spells
// its paths is settled behind this seam and nowhere else.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varlo {

// An open file. kNoFile stands for "none" and is what a failed open gives.
using FileHandle = std::intptr_t;
inline constexpr FileHandle kNoFile = -1;

enum class SeekFrom { Start, Current, End };

enum class MakeFolderResult { Made, Exists, Failed };

// Why an operation failed, as far as the program tells its user.
enum class FileError { PathNotFound, AccessDenied, Other };

// One match of a folder search.
struct FoundFile {
  std::string name;  // without its folder
  bool isFolder = false;
  std::uint32_t size = 0;  // low 32 bits of the size in bytes
};

struct Files {
  virtual ~Files() = default;

  // Opens an existing file for reading; kNoFile on failure, also for a folder and for what is no plain file.
  [[nodiscard]] virtual FileHandle openRead(std::string_view path) = 0;
  // Creates the file, or empties the one that is there, and opens it for writing; kNoFile on failure.
  [[nodiscard]] virtual FileHandle create(std::string_view path) = 0;
  // The same for a file that is written from its start to its end and then closed. The bytes of an old one
  // may go only as they are written over, which spares the file system much work.
  [[nodiscard]] virtual FileHandle createOver(std::string_view path) { return create(path); }
  // Reads up to `size` bytes; gives how many came: fewer at the end of the file or on an error, then 0.
  virtual std::size_t read(FileHandle file, void* data, std::size_t size) = 0;
  // Writes `size` bytes; gives how many went out.
  virtual std::size_t write(FileHandle file, const void* data, std::size_t size) = 0;
  // Moves the position; gives the new one in bytes from the start, -1 on failure.
  virtual std::int64_t seek(FileHandle file, std::int64_t offset, SeekFrom from) = 0;
  virtual void close(FileHandle file) = 0;

  // Copies a file over an existing one, or fails on an existing one when `overwrite` is off.
  virtual bool copy(std::string_view from, std::string_view to, bool overwrite) = 0;
  // Renames a file; fails when the target exists.
  virtual bool move(std::string_view from, std::string_view to) = 0;
  virtual bool remove(std::string_view path) = 0;
  // Makes one folder; the folder above must be there.
  virtual MakeFolderResult makeFolder(std::string_view path) = 0;
  // Files and folders matching `pattern`, a path whose last part may hold "*" and "?"; without "." and
  // "..", sorted by name without regard to case.
  virtual std::vector<FoundFile> search(std::string_view pattern) = 0;

  // Full path that relative names are taken against, without a slash at its end.
  virtual std::string workingFolder() = 0;
  // The program's full name for a path as the host's user spells it.
  virtual std::string nameOf(std::string_view hostPath) = 0;
  // The machine's own words for the last failure on this object.
  virtual std::string errorText() = 0;
  // The kind of the last failure on this object.
  virtual FileError lastError() = 0;
};

}  // namespace varlo
