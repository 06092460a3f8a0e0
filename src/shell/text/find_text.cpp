#include "shell/text/find_text.h"

namespace varlo {

bool findNext(RichText& text, std::string_view what, int& start) {
  const int found = what.empty() ? kNotFound : text.find(what, start);
  if (found == kNotFound) {
    start = 0;
    return false;
  }
  start = found + static_cast<int>(what.size());
  text.select({found, start});
  text.showCaret();
  return true;
}

}  // namespace varlo
