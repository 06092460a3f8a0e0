// The rolling backups of a project: before each save the file on disk is kept, the last ten times.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace varlo {

struct Program;

// A file in the backup folder.
struct BackupEntry {
  std::string path;        // full
  std::int32_t time = 0;   // seconds since 1970 from its own TIME= line; 0 when it has none
  std::uint32_t size = 0;  // low 32 bits
};

// Moves the backups of the open project up by one and copies its file to the first place. Gives the
// result of that copy: 1 or 0; 0 with no project. Nothing else is told of what fails.
int BackupRoll(Program& program);

// Every file in the project's backup folder, whatever its name, by name.
[[nodiscard]] std::vector<BackupEntry> BackupListRead(Program& program);

// What every save of the user's is: the rolling backup, then the project. Gives the result of the save.
[[nodiscard]] bool SaveWithBackup(Program& program);

}  // namespace varlo
