// The files that belong to a scheme: bullets, buttons and headings.
#pragma once

#include <string_view>

namespace varlo {

struct Generator;

// Copies the files of the store's scheme into `directory`, under their names in lower case, over any old
// ones. One that can't be copied is an error, as is one whose copy would lie outside; the others are copied all the
// same. Nothing without a scheme.
void CopySchemeFiles(Generator& generator, std::string_view directory);

}  // namespace varlo
