// Choosing in the layout catalogue, as the lists of the Layout tab and of the store wizard do.
#pragma once

#include "core/program/scheme.h"

namespace varlo {

struct Program;

// Makes a style of the catalogue current, with its first scheme. A style without any gets a scheme "Default".
void StyleSelect(Program& program, SchemeStyle& style);

}  // namespace varlo
