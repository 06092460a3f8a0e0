#include "persist/life/backup.h"

#include "core/program/program.h"
#include "core/text/line_reader.h"
#include "core/text/number_text.h"
#include "core/text/open_file.h"
#include "core/text/text_search.h"
#include "persist/project/project_paths.h"
#include "persist/project/project_save.h"

namespace varlo {
namespace {

// The time that a backup's first line tells.
std::int32_t readTime(Program& program, const std::string& path) {
  OpenFile file(program.files, program.files.openRead(path));
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  std::string_view line;
  if (LineRead(reader, line) == 0 || !line.starts_with("TIME=")) return 0;
  return LeadingInt(TextBehind(line, '='));
}

// A copy that breaks off is taken away again, unless a whole backup may have stood in its place.
bool copyToNewest(Files& files, const StoreProject& project) {
  const std::string newest = BackupPath(project, 1);
  const bool isFree = FileExists(files, newest) == 0;
  const bool copied = files.copy(project.projectFile.view(), newest, true);
  if (!copied && isFree) files.remove(newest);
  return copied;
}

}  // namespace

int BackupRoll(Program& program) {
  const StoreProject& project = program.project;
  if (project.projectDir.isNull() || project.projectFile.isNull()) return 0;
  Files& files = program.files;
  files.makeFolder(BackupFolder(project));
  files.remove(BackupPath(project, kBackups));
  for (int n = kBackups - 1; n >= 1; --n) files.move(BackupPath(project, n), BackupPath(project, n + 1));
  return copyToNewest(files, project) ? 1 : 0;
}

std::vector<BackupEntry> BackupListRead(Program& program) {
  std::vector<BackupEntry> backups;
  const StoreProject& project = program.project;
  if (project.projectDir.isNull()) return backups;
  const std::string folder = BackupFolder(project) + "\\";
  for (const FoundFile& found : program.files.search(folder + "*.*")) {
    if (found.isFolder) continue;
    const std::string path = folder + found.name;
    backups.push_back({.path = path, .time = readTime(program, path), .size = found.size});
  }
  return backups;
}

// A file that lost its end is no state to come back to: it would push a whole backup out of the series.
bool SaveWithBackup(Program& program) {
  const StoreProject& project = program.project;
  if (project.cutFile.isNull() || project.cutFile.view() != project.projectFile.view()) BackupRoll(program);
  return ProjectSave(program);
}

}  // namespace varlo
