// Files on POSIX systems, under the names that the program knows: back slashes become slashes, the
// characters become UTF-8, and a name is found without regard to letter case, part by part. "Z:" is the
// root of the file system; no other drive exists.
#pragma once

#include <string>

#include "platform/files.h"
#include "posix/folder_index.h"

namespace varlo {

class PosixFiles : public Files {
 public:
  // Relative names are taken against `folder`, a host path; empty for the current directory.
  explicit PosixFiles(const std::string& folder = {});

  FileHandle openRead(std::string_view path) override;
  FileHandle create(std::string_view path) override;
  FileHandle createOver(std::string_view path) override;
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

  // The path of a file, there or not, as the host spells it.
  [[nodiscard]] std::string hostPathOf(std::string_view path) { return find(path).path(); }

 private:
  // A host path in two parts, and whether something is there under it.
  struct Place {
    std::string folder;
    std::string name;
    bool exists = false;
    [[nodiscard]] std::string path() const { return folder + "/" + name; }
  };
  [[nodiscard]] std::string hostPath(std::string_view path) const;
  Place find(std::string_view path);
  Place findOther(std::string host);
  std::string findFolder(const std::string& path);
  int openNew(std::string_view path, int emptying);
  FileHandle opened(int descriptor, bool forWriting);
  bool failed(int error);

  std::string folder_;
  FolderIndex index_;
  int error_ = 0;
  int overwritten_ = -1;  // a file that ends, when it is closed, where it was written last
};

}  // namespace varlo
