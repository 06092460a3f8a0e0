// Finding out which byte separates the fields of a file: the one that its first lines hold most of.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace varlo {

class DelimiterCandidates {
 public:
  // Counts the candidates of one more line. What stands between two double quotes or two apostrophes does not count,
  // nor what stands behind one without a partner. These two bytes are meant whatever the dialect says.
  void addLine(std::string_view line);

  // The candidate that occurred more often than each other one; `otherwise` when there is none.
  [[nodiscard]] char choose(char otherwise) const;

 private:
  static constexpr std::string_view kBytes = ",;|:";
  std::array<std::size_t, kBytes.size()> sums_{};
};

}  // namespace varlo
