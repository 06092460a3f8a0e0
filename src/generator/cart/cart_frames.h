// The files around the pages of a store: the framesets, and the two frames that hold the cart. The cart's
// script stands in the templates; here only values are put into them.
#pragma once

#include <string_view>

namespace varlo {

struct Generator;

inline constexpr std::string_view kTrolleyTemplate = "template\\trolley.dat";
inline constexpr std::string_view kRegisterTemplate = "template\\register.dat";

// Writes a frameset page into webDir with `pageFile` as the main frame. 1 written; 0 with a counted error
// and a message when the file can't be created.
int WriteFrameLoader(Generator& generator, std::string_view pageFile, std::string_view targetName);

// Write "trolley.html" and "register.html" from the cart templates, which are read by the first build of a
// run; while a template is missing or empty, so is its file. 1 written; 0 with a message when the file can't
// be created, and without one when memory runs out.
int WriteTrolley(Generator& generator);
int WriteRegister(Generator& generator);

}  // namespace varlo
