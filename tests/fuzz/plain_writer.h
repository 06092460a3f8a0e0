// The project file written in the plain way: the bytes that a save makes of a PlainProject.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/fuzz/plain_project.h"

namespace varlo::fuzz {

struct PlainFile {
  std::string bytes;
  bool cut = false;         // a piece was longer than what is written of one
  std::vector<int> counts;  // shown meanwhile, in no certain order
};

// Writes the project; every "|" goes out of the names of its variables, for good.
PlainFile PlainWrite(PlainProject& project, const PlainCatalogue& catalogue, std::int64_t time);

}  // namespace varlo::fuzz
