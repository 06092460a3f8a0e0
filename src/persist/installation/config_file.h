// config.ini, the settings of the installation, and server.ini, what it ships with.
#pragma once

#include <string_view>

namespace varlo {

struct Program;

// Reads a settings file. 1 when read, 0 when it can't be opened; no message either way.
int ConfigRead(Program& program, std::string_view path);

// Writes config.ini, then scheme.ini. 1 done, 0 with a message; without config.ini, scheme.ini is not
// written either.
int ConfigSave(Program& program);

}  // namespace varlo
