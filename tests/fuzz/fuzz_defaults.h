// What a fuzz target is run with when the command line does not tell otherwise. The build writes these for each
// target.
#pragma once

namespace varlo::fuzz {

extern const char* const kSeeds;       // the folder of the inputs to start from
extern const char* const kDictionary;  // the file with the words

}  // namespace varlo::fuzz
