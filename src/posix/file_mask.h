// Matching file names against a search mask, in the way of Windows.
#pragma once

#include <string_view>

namespace varlo {

// Whether `name` matches `mask`, where "*" stands for any bytes and "?" for one, without regard to case.
// A mask that ends in ".*" also takes names without an extension.
[[nodiscard]] bool MatchesMask(std::string_view name, std::string_view mask);

}  // namespace varlo
