// Opening the project that projectFile names.
#pragma once

namespace varlo {

struct Program;

// Replaces the open project by what its file holds, in the small dialog that tells so. 1 done; 0
// without a project file, or with a message when it can't be read: the name is then released and the
// tree that was open stays.
int ProjectLoad(Program& program);

}  // namespace varlo
