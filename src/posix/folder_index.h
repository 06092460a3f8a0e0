// FolderIndex: finds the names in a folder without regard to letter case, as Windows would.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include <sys/stat.h>

namespace varlo {

class FolderIndex {
 public:
  // The host's name of the entry of `folder` (a host path) that `name` (bytes of the program's
  // character set) means; empty when there is none. The folder is read once and again after others
  // changed it.
  [[nodiscard]] std::string find(const std::string& folder, std::string_view name);
  // The same, with the name in `found`; false when there is no such folder.
  [[nodiscard]] bool lookUp(const std::string& folder, std::string_view name, std::string& found);

  // Whether the folder held exactly this host name when it was looked at last.
  [[nodiscard]] bool remembers(const std::string& folder, std::string_view name, std::string_view hostName) const;

  // Tells that this program has made `hostName` in the folder, or removed it.
  void added(const std::string& folder, std::string_view hostName);
  void removed(const std::string& folder, std::string_view hostName);

 private:
  struct Folder {
    timespec changed{};
    std::unordered_map<std::string, std::string> names;  // by folded name
  };
  static bool changeTime(const std::string& folder, timespec& time);
  static void readNames(const std::string& folder, Folder& entry);
  Folder* known(const std::string& folder);

  std::unordered_map<std::string, Folder> folders_;
};

}  // namespace varlo
