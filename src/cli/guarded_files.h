// GuardedFiles: a file system that can be read, and of which only one file may be written. Commands
// that only look use it, since loading an old project would otherwise renew its templates, and those that look first.
#pragma once

#include <string>
#include <utility>

#include "platform/files_wrapper.h"

namespace varlo {

class GuardedFiles : public FilesWrapper {
 public:
  // `output` is the file that may be written; empty for none.
  explicit GuardedFiles(Files& files, std::string output = {}) : FilesWrapper(files), output_(std::move(output)) {}

  // From now on everything may be written.
  void lift() { lifted_ = true; }

  FileHandle create(std::string_view path) override {
    return lifted_ || (!output_.empty() && path == output_) ? FilesWrapper::create(path) : kNoFile;
  }
  bool copy(std::string_view from, std::string_view to, bool overwrite) override {
    return lifted_ && FilesWrapper::copy(from, to, overwrite);
  }
  bool move(std::string_view from, std::string_view to) override { return lifted_ && FilesWrapper::move(from, to); }
  bool remove(std::string_view path) override { return lifted_ && FilesWrapper::remove(path); }
  MakeFolderResult makeFolder(std::string_view path) override {
    return lifted_ ? FilesWrapper::makeFolder(path) : MakeFolderResult::Failed;
  }

 private:
  std::string output_;
  bool lifted_ = false;
};

}  // namespace varlo
