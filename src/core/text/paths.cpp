#include "core/text/paths.h"

namespace varlo {

std::string SingleBackSlashes(std::string_view path) {
  std::string single;
  single.reserve(path.size());
  for (const char c : path) {
    if (c != '\\' || single.empty() || single.back() != '\\') single += c;
  }
  return single;
}

std::string_view PathName(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);  // npos + 1 is 0
}

std::string_view PathStem(std::string_view path) {
  const std::string_view name = PathName(path);
  return name.substr(0, name.rfind('.'));
}

}  // namespace varlo
