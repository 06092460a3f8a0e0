// GuardedFiles: a file system that can be read, and of which only one file may be written. Commands
// that only look use it, since loading an old project would otherwise renew its templates.
#pragma once

#include <string>
#include <utility>

#include "platform/files_wrapper.h"

namespace varlo {

class GuardedFiles : public FilesWrapper {
 public:
  // `output` is the file that may be written; empty for none.
  explicit GuardedFiles(Files& files, std::string output = {}) : FilesWrapper(files), output_(std::move(output)) {}

  FileHandle create(std::string_view path) override {
    return !output_.empty() && path == output_ ? FilesWrapper::create(path) : kNoFile;
  }
  bool copy(std::string_view, std::string_view, bool) override { return false; }
  bool move(std::string_view, std::string_view) override { return false; }
  bool remove(std::string_view) override { return false; }
  MakeFolderResult makeFolder(std::string_view) override { return MakeFolderResult::Failed; }

 private:
  std::string output_;
};

}  // namespace varlo
