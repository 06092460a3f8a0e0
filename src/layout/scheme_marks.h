// The marks in the lists of styles and schemes.
#pragma once

#include "core/program/scheme.h"

namespace varlo {

struct StoreProject;

// By who made the style.
[[nodiscard]] int StyleMark(const SchemeStyle& style);

// A tick on the scheme that the store is built with, otherwise by who made it.
[[nodiscard]] int SchemeMark(const StoreProject& project, const Scheme& scheme);

}  // namespace varlo
