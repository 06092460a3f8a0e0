#include "posix/file_mask.h"

#include "core/text/charset.h"

namespace varlo {
namespace {

// Goes back to the last "*" on a mismatch, so no recursion is needed.
bool matches(std::string_view name, std::string_view mask) {
  std::size_t n = 0;
  std::size_t m = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (m < mask.size() && mask[m] == '*') {
      star = m++;
      resume = n;
    } else if (m < mask.size() && (mask[m] == '?' || LowerByte(mask[m]) == LowerByte(name[n]))) {
      ++n;
      ++m;
    } else if (star != std::string_view::npos) {
      m = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (m < mask.size() && mask[m] == '*') ++m;
  return m == mask.size();
}

}  // namespace

bool MatchesMask(std::string_view name, std::string_view mask) {
  if (matches(name, mask)) return true;
  const bool anyExtension = mask.ends_with(".*");
  return anyExtension && name.find('.') == std::string_view::npos && matches(name, mask.substr(0, mask.size() - 2));
}

}  // namespace varlo
