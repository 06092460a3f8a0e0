// The making of a page told once more, as plainly as it can be: every step searches the text from its
// start and changes it. Written apart from the generator, to compare it with.
#pragma once

#include <string>
#include <vector>

#include "core/program/program.h"
#include "core/store/store_node.h"

namespace varlo::test {

struct PlainPage {
  std::string text;                // of the file
  std::vector<std::string> lines;  // of the log
  int errors = 0;
  std::string scratch;  // the text composed last
};

// Thrown where the plain steps would not come to an end in any useful time, though no value holds its key.
struct PlainStepsTooLong {};

// The page of `node` from a template of this text; `scratch` is what was composed before. The project has
// a scheme, and no node has pictures to copy.
[[nodiscard]] PlainPage MakePlainPage(Program& program, const std::string& source, StoreNode& node,
                                      const std::string& scratch);

}  // namespace varlo::test
