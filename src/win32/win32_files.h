// Files on Windows. Names pass through as they are, in the system's 8-bit character set.
#pragma once

#include <string>

#include "platform/files.h"

namespace varlo {

class Win32Files : public Files {
 public:
  FileHandle openRead(std::string_view path) override;
  FileHandle create(std::string_view path) override;
  std::size_t read(FileHandle file, void* data, std::size_t size) override;
  std::size_t write(FileHandle file, const void* data, std::size_t size) override;
  std::int64_t seek(FileHandle file, std::int64_t offset, SeekFrom from) override;
  void close(FileHandle file) override;
  bool copy(std::string_view from, std::string_view to, bool overwrite) override;
  bool move(std::string_view from, std::string_view to) override;
  bool remove(std::string_view path) override;
  MakeFolderResult makeFolder(std::string_view path) override;
  std::vector<FoundFile> search(std::string_view pattern) override;
  std::string workingFolder() override;
  std::string nameOf(std::string_view hostPath) override;
  std::string errorText() override;
  FileError lastError() override;

 private:
  bool done(int result);

  unsigned long error_ = 0;
};

}  // namespace varlo
