// A folder for the files of a benchmark: on the memory file system when the machine has one, so that no
// disk is measured.
#pragma once

#include <string>

namespace varlo::bench {

class WorkFolder {
 public:
  // Makes a new folder inside `parent`, a host path; empty for the machine's memory file system, or else
  // its place for temporary files. Throws std::runtime_error when it can't.
  explicit WorkFolder(const std::string& parent);
  // Deletes the folder with all that is in it.
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace varlo::bench
