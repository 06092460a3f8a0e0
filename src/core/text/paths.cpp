#include "core/text/paths.h"

namespace varlo {
namespace {

constexpr std::string_view kSlashes = "\\/";

// Two dots with more dots or blanks: one system takes it for a name, another for "..".
bool isOddClimb(std::string_view part) {
  return part.size() > 2 && part.starts_with('.') && part.find('.', 1) != std::string_view::npos &&
         part.find_first_not_of(". ") == std::string_view::npos;
}

}  // namespace

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

bool StaysBelow(std::string_view name) {
  if (name.find_first_of(std::string_view(":\0", 2)) != std::string_view::npos) return false;
  if (name.find_first_of(kSlashes) == 0) return false;
  int depth = 0;
  while (!name.empty()) {
    const std::size_t end = name.find_first_of(kSlashes);
    const std::string_view part = name.substr(0, end);
    name = end == std::string_view::npos ? std::string_view() : name.substr(end + 1);
    if (isOddClimb(part)) return false;
    if (part == "..") {
      if (--depth < 0) return false;
    } else if (!part.empty() && part != ".") {
      ++depth;
    }
  }
  return true;
}

}  // namespace varlo
