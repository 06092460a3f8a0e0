// A disk that fails at its n-th operation: every operation that changes something counts, each write as
// well.
#pragma once

#include <string>
#include <vector>

#include "platform/files_wrapper.h"

namespace varlo::test {

enum class Failure {
  Denied,   // the operation does nothing
  NoSpace,  // a write or a copy goes half way; everything else does nothing
};

class FailingFiles : public FilesWrapper {
 public:
  // Operation number `at`, counted from 1, fails; 0 for none.
  FailingFiles(Files& files, int at, Failure failure) : FilesWrapper(files), at_(at), failure_(failure) {}

  [[nodiscard]] int operations() const { return count_; }
  // The path in hand when the disk failed, empty when it did not.
  [[nodiscard]] const std::string& failedPath() const { return failedPath_; }
  // What the failing operation was.
  [[nodiscard]] const std::string& failedOperation() const { return failedOperation_; }

  FileHandle create(std::string_view path) override {
    if (failsNow("create", path)) return kNoFile;
    const FileHandle file = FilesWrapper::create(path);
    created_ = path;
    return file;
  }
  std::size_t write(FileHandle file, const void* data, std::size_t size) override {
    if (!failsNow("write", created_)) return FilesWrapper::write(file, data, size);
    return failure_ == Failure::NoSpace ? FilesWrapper::write(file, data, size / 2) : 0;
  }
  bool copy(std::string_view from, std::string_view to, bool overwrite) override {
    if (!failsNow("copy", to)) return FilesWrapper::copy(from, to, overwrite);
    if (failure_ == Failure::NoSpace) copyHalf(from, to);
    return false;
  }
  bool move(std::string_view from, std::string_view to) override {
    return !failsNow("move", to) && FilesWrapper::move(from, to);
  }
  bool remove(std::string_view path) override { return !failsNow("remove", path) && FilesWrapper::remove(path); }
  MakeFolderResult makeFolder(std::string_view path) override {
    return failsNow("makeFolder", path) ? MakeFolderResult::Failed : FilesWrapper::makeFolder(path);
  }

 protected:
  // What happens at the operation; a test may end the process here.
  virtual bool failsNow(const char* operation, std::string_view path) {
    if (++count_ != at_) return false;
    failedOperation_ = operation;
    failedPath_ = path;
    return true;
  }

  void copyHalf(std::string_view from, std::string_view to) {
    const FileHandle in = FilesWrapper::openRead(from);
    if (in == kNoFile) return;
    std::vector<char> content;
    char block[4096];
    while (const std::size_t got = FilesWrapper::read(in, block, sizeof block)) {
      content.insert(content.end(), block, block + got);
    }
    FilesWrapper::close(in);
    const FileHandle out = FilesWrapper::create(to);
    if (out == kNoFile) return;
    FilesWrapper::write(out, content.data(), content.size() / 2);
    FilesWrapper::close(out);
  }

  [[nodiscard]] Failure failure() const { return failure_; }

 private:
  int at_;
  Failure failure_;
  int count_ = 0;
  std::string created_;
  std::string failedPath_;
  std::string failedOperation_;
};

}  // namespace varlo::test
