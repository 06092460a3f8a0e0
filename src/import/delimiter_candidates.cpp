#include "import/delimiter_candidates.h"

#include <algorithm>

namespace varlo {

void DelimiterCandidates::addLine(std::string_view line) {
  for (std::size_t at = 0; at < line.size(); ++at) {
    const char byte = line[at];
    if (byte == '"' || byte == '\'') {
      at = line.find(byte, at + 1);
      if (at == std::string_view::npos) return;
    }
    const std::size_t candidate = kBytes.find(byte);
    if (candidate != std::string_view::npos) ++sums_[candidate];
  }
}

char DelimiterCandidates::choose(char otherwise) const {
  const auto most = std::max_element(sums_.begin(), sums_.end());
  const bool single = *most > 0 && std::count(sums_.begin(), sums_.end(), *most) == 1;
  return single ? kBytes[static_cast<std::size_t>(most - sums_.begin())] : otherwise;
}

}  // namespace varlo
