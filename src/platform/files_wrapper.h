// FilesWrapper: forwards every operation to another file system, so that a class of its own overrides
// only those it changes.
#pragma once

#include "platform/files.h"

namespace varlo {

class FilesWrapper : public Files {
 public:
  explicit FilesWrapper(Files& files) : files_(files) {}

  FileHandle openRead(std::string_view path) override { return files_.openRead(path); }
  FileHandle create(std::string_view path) override { return files_.create(path); }
  std::size_t read(FileHandle file, void* data, std::size_t size) override { return files_.read(file, data, size); }
  std::size_t write(FileHandle file, const void* data, std::size_t size) override {
    return files_.write(file, data, size);
  }
  std::int64_t seek(FileHandle file, std::int64_t offset, SeekFrom from) override {
    return files_.seek(file, offset, from);
  }
  void close(FileHandle file) override { files_.close(file); }
  bool copy(std::string_view from, std::string_view to, bool overwrite) override {
    return files_.copy(from, to, overwrite);
  }
  bool move(std::string_view from, std::string_view to) override { return files_.move(from, to); }
  bool remove(std::string_view path) override { return files_.remove(path); }
  MakeFolderResult makeFolder(std::string_view path) override { return files_.makeFolder(path); }
  std::vector<FoundFile> search(std::string_view pattern) override { return files_.search(pattern); }
  std::string workingFolder() override { return files_.workingFolder(); }
  std::string nameOf(std::string_view hostPath) override { return files_.nameOf(hostPath); }
  std::string errorText() override { return files_.errorText(); }
  FileError lastError() override { return files_.lastError(); }

 protected:
  Files& files_;
};

}  // namespace varlo
