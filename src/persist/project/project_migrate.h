// What is done after loading to a project of an older format version.
#pragma once

namespace varlo {

struct Program;

// Renews the form templates of a project that an older version saved, after a message, and raises its
// version. 0 when nothing was to be done, else another number. Failing copies are not told.
int ProjectMigrate(Program& program);

}  // namespace varlo
