// Page templates to measure with: of the shape and the size that a shop's templates have. The same call
// always makes the same bytes.
#pragma once

#include <string>

namespace varlo::bench {

// A template of about 6 KB with 85 variables, as product and category pages have them.
[[nodiscard]] std::string MadePageTemplate();

// A shelf's template, with a block of about 1 KB.
[[nodiscard]] std::string MadeShelfTemplate();

// Writes all four page templates into the folder "template" below `folder`, a host path. Throws
// std::runtime_error when they can't be written.
void WriteMadeTemplates(const std::string& folder);

}  // namespace varlo::bench
