// A file system in memory, with the rules of the real ones: back slashes, no regard to letter case,
// folders that must exist. It keeps a log of the operations that change it, and can fail at the n-th.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/files.h"

namespace varlo::test {

class FakeFiles : public Files {
 public:
  // Puts a file there, with every folder above it.
  void put(std::string_view path, std::string_view content);
  // Makes a folder and those above it.
  void putFolder(std::string_view path);
  // The content of a file, none when it is not there.
  [[nodiscard]] std::optional<std::string> content(std::string_view path) const;
  // Full names of all files, sorted.
  [[nodiscard]] std::vector<std::string> names() const;

  // The operations since the start that change the disk, as in "create C:\\shop\\a.stp".
  std::vector<std::string> log;
  // Asked before each operation that changes the disk, with its line of the log; true makes it fail.
  std::function<bool(const std::string& operation)> shallFail;
  // What errorText gives.
  std::string error = "The fake disk failed.";
  // The kind of failure that shallFail brings about.
  FileError failure = FileError::Other;

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
  std::string workingFolder() override { return "C:\\Varlo"; }
  std::string nameOf(std::string_view hostPath) override { return full(hostPath); }
  std::string errorText() override { return error; }
  FileError lastError() override { return lastError_; }

  // Handles that were opened and not closed yet.
  [[nodiscard]] std::size_t openHandles() const { return open_.size(); }

 private:
  struct File {
    std::string name;  // full, as first spelt
    std::string content;
  };
  struct Open {
    std::string key;
    std::size_t position = 0;
  };
  [[nodiscard]] static std::string full(std::string_view path);
  [[nodiscard]] static std::string keyOf(std::string_view path);
  [[nodiscard]] bool folderExists(const std::string& key) const;
  bool blocked(const std::string& operation);
  bool failed(FileError error);

  std::map<std::string, File> files_;  // by key: full name in lower case
  std::set<std::string> folders_{"c:", "c:\\varlo"};
  std::map<FileHandle, Open> open_;
  FileHandle nextHandle_ = 100;
  FileError lastError_ = FileError::Other;
};

}  // namespace varlo::test
