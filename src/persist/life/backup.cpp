#include "persist/life/backup.h"

#include "core/program/program.h"
#include "core/text/line_reader.h"
#include "core/text/number_text.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "core/text/text_search.h"
#include "persist/project/project_save.h"

namespace varlo {
namespace {

std::string backupFolder(const StoreProject& project) {
  return SingleBackSlashes(std::string(project.projectDir.view()).append("\\Backup"));
}

// The time that a backup's first line tells.
std::int32_t readTime(Program& program, const std::string& path) {
  OpenFile file(program.files, program.files.openRead(path));
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  std::string_view line;
  if (LineRead(reader, line) == 0 || !line.starts_with("TIME=")) return 0;
  return LeadingInt(TextBehind(line, '='));
}

}  // namespace

int BackupRoll(Program& program) {
  const StoreProject& project = program.project;
  if (project.projectDir.isNull() || project.projectFile.isNull()) return 0;
  Files& files = program.files;
  const std::string folder = backupFolder(project);
  files.makeFolder(folder);
  const std::string name = folder + "\\" + std::string(PathName(project.projectFile.view())) + ".";
  files.remove(name + IntToText(kBackups));
  for (int n = kBackups - 1; n >= 1; --n) files.move(name + IntToText(n), name + IntToText(n + 1));
  return files.copy(project.projectFile.view(), name + IntToText(1), true) ? 1 : 0;
}

std::vector<BackupEntry> BackupListRead(Program& program) {
  std::vector<BackupEntry> backups;
  const StoreProject& project = program.project;
  if (project.projectDir.isNull()) return backups;
  const std::string folder = std::string(project.projectDir.view()).append("\\Backup\\");
  for (const FoundFile& found : program.files.search(folder + "*.*")) {
    if (found.isFolder) continue;
    const std::string path = folder + found.name;
    backups.push_back({.path = path, .time = readTime(program, path), .size = found.size});
  }
  return backups;
}

int SaveWithBackup(Program& program) {
  BackupRoll(program);
  return ProjectSave(program);
}

}  // namespace varlo
