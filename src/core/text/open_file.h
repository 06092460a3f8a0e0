// OpenFile: closes a file handle when it goes out of scope.
#pragma once

#include "platform/files.h"

namespace varlo {

class OpenFile {
 public:
  // Takes over `handle`, which may be kNoFile.
  OpenFile(Files& files, FileHandle handle) : files_(files), handle_(handle) {}
  ~OpenFile() { close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] bool isOpen() const { return handle_ != kNoFile; }
  [[nodiscard]] FileHandle handle() const { return handle_; }
  void close() {
    if (handle_ != kNoFile) files_.close(handle_);
    handle_ = kNoFile;
  }

 private:
  Files& files_;
  FileHandle handle_;
};

// Whether the file can be opened for reading; 1 or 0.
inline int FileExists(Files& files, std::string_view path) {
  return OpenFile(files, files.openRead(path)).isOpen() ? 1 : 0;
}

}  // namespace varlo
