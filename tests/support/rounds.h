// How long a test with random inputs goes on.
#pragma once

#include <algorithm>
#include <cstdlib>

namespace varlo::test {

// The usual number of rounds, or many times that in a soak: VARLO_SOAK in the environment says how many times.
inline int Rounds(int usual) {
  const char* times = std::getenv("VARLO_SOAK");
  return usual * (times != nullptr ? std::max(std::atoi(times), 1) : 1);
}

}  // namespace varlo::test
