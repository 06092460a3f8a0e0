#include "persist/life/backup.h"

#include <gtest/gtest.h>

#include "persist/life/project_life.h"
#include "platform/files_wrapper.h"
#include "tests/support/failing_files.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

const std::string kFolder = "C:\\Varlo\\Projects\\Shop\\Backup";
const std::string kBackup = kFolder + "\\Shop.stp.";

// A project file with this title.
std::string stateText(const std::string& title) { return "VERSION=107001\nNODE0=Home\nSTITLE=" + title + "\n"; }

class BackupTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  // The store's title in a project file, which tells the saved states apart.
  std::string titleIn(const std::string& path) {
    const std::string text = t.files.content(path).value_or("STITLE=(no file)\n");
    const std::size_t at = text.find("STITLE=");
    return at == std::string::npos ? "(no title)" : text.substr(at + 7, text.find('\n', at) - at - 7);
  }
  void saveAs(const std::string& title) {
    project.storeTitle.assign(std::string_view(title));
    ProjectSaveNow(t.program);
  }
  void saveElevenTimes() {
    for (int n = 1; n <= 11; ++n) saveAs("State " + std::to_string(n));
  }
  void expectTheTenStatesBeforeTheEleventh() {
    EXPECT_EQ(titleIn(kProjectPath), "State 11");
    for (int n = 1; n <= 10; ++n) {
      EXPECT_EQ(titleIn(kBackup + std::to_string(n)), "State " + std::to_string(11 - n)) << "backup " << n;
    }
    EXPECT_EQ(t.files.search(kFolder + "\\*.*").size(), 10U);
  }
  void openWithBackups(std::initializer_list<int> numbers) {
    LoadText(t, stateText("On disk"));
    for (const int n : numbers) t.files.put(kBackup + std::to_string(n), stateText("Backup " + std::to_string(n)));
    t.files.log.clear();
    t.screen.tasks.clear();
  }
  std::vector<std::string> listedNames() {
    std::vector<std::string> names;
    for (const BackupEntry& entry : BackupListRead(t.program)) names.push_back(entry.path);
    return names;
  }
};

TEST_F(BackupTest, ElevenSavesOfANewProjectLeaveTenBackups) {
  t.files.putFolder("Projects");
  ProjectCreate(t.program, "Shop");
  saveElevenTimes();
  expectTheTenStatesBeforeTheEleventh();
}

TEST_F(BackupTest, ElevenSavesOfAnOpenedProjectDropTheStateThatWasOpened) {
  LoadText(t, stateText("Opened"));
  saveElevenTimes();
  expectTheTenStatesBeforeTheEleventh();
}

TEST_F(BackupTest, ASaveKeepsTheStateBeforeIt) {
  LoadText(t, stateText("Before"));
  saveAs("After");
  EXPECT_EQ(titleIn(kProjectPath), "After");
  EXPECT_EQ(t.files.content(kBackup + "1"), stateText("Before"));
  EXPECT_EQ(t.files.search(kFolder + "\\*.*").size(), 1U);
}

TEST_F(BackupTest, TheFirstSaveOfANewProjectOnlyMakesTheFolder) {
  t.files.putFolder("Projects");
  ProjectCreate(t.program, "Shop");
  EXPECT_EQ(BackupRoll(t.program), 0);
  EXPECT_EQ(t.files.makeFolder(kFolder), MakeFolderResult::Exists);
  EXPECT_TRUE(t.files.search(kFolder + "\\*.*").empty());
  EXPECT_TRUE(t.screen.tasks.empty());
}

TEST_F(BackupTest, RollsFromTheOldestToTheNewest) {
  openWithBackups({});
  EXPECT_EQ(BackupRoll(t.program), 1);
  std::vector<std::string> steps{"makeFolder " + kFolder, "remove " + kBackup + "10"};
  for (int n = 9; n >= 1; --n) {
    steps.push_back("move " + kBackup + std::to_string(n) + " to " + kBackup + std::to_string(n + 1));
  }
  steps.push_back(std::string("copy ") + kProjectPath + " to " + kBackup + "1");
  EXPECT_EQ(t.files.log, steps);
}

TEST_F(BackupTest, AMissingNumberIsNoObstacle) {
  openWithBackups({1, 2, 4, 10});
  EXPECT_EQ(BackupRoll(t.program), 1);
  EXPECT_EQ(titleIn(kBackup + "1"), "On disk");
  EXPECT_EQ(titleIn(kBackup + "2"), "Backup 1");
  EXPECT_EQ(titleIn(kBackup + "3"), "Backup 2");
  EXPECT_EQ(titleIn(kBackup + "4"), "(no file)");
  EXPECT_EQ(titleIn(kBackup + "5"), "Backup 4");
  EXPECT_EQ(titleIn(kBackup + "10"), "(no file)");
}

TEST_F(BackupTest, OnlyTheProjectFileIsKept) {
  t.files.put("Projects\\Shop\\Template\\order.htm", "order");
  openWithBackups({});
  BackupRoll(t.program);
  EXPECT_EQ(t.files.names(), (std::vector<std::string>{kBackup + "1", kProjectPath,
                                                       "C:\\Varlo\\Projects\\Shop\\Template\\order.htm"}));
}

TEST_F(BackupTest, ABackupHasTheNameOfTheProjectFileWhateverItsDots) {
  t.files.put("C:\\my.shops\\a.b.stp", stateText("On disk"));
  project.projectFile.assign("C:\\my.shops\\a.b.stp");
  project.projectDir.assign("C:\\my.shops");
  EXPECT_EQ(BackupRoll(t.program), 1);
  EXPECT_EQ(BackupRoll(t.program), 1);
  EXPECT_EQ(titleIn("C:\\my.shops\\Backup\\a.b.stp.1"), "On disk");
  EXPECT_EQ(titleIn("C:\\my.shops\\Backup\\a.b.stp.2"), "On disk");
}

TEST_F(BackupTest, ForeignFilesInTheFolderStay) {
  openWithBackups({1});
  t.files.put(kFolder + "\\notes.txt", "mine");
  t.files.put(kBackup + "11", "mine");
  BackupRoll(t.program);
  EXPECT_EQ(t.files.content(kFolder + "\\notes.txt"), "mine");
  EXPECT_EQ(t.files.content(kBackup + "11"), "mine");
}

TEST_F(BackupTest, WithoutAProjectNothingIsRolled) {
  EXPECT_EQ(BackupRoll(t.program), 0);
  project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  EXPECT_EQ(BackupRoll(t.program), 0);
  project.projectDir.release();
  project.projectFile.assign(kProjectPath);
  EXPECT_EQ(BackupRoll(t.program), 0);
  EXPECT_TRUE(t.files.log.empty());
}

TEST_F(BackupTest, NothingIsToldOfWhatFails) {
  openWithBackups({1});
  t.files.shallFail = [](const std::string&) { return true; };
  EXPECT_EQ(BackupRoll(t.program), 0);
  EXPECT_EQ(t.files.log.size(), 12U) << "each step is tried all the same";
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(BackupTest, ARenameThatFailsDoesNotStopTheOthers) {
  openWithBackups({1, 2, 3});
  t.files.shallFail = [](const std::string& operation) { return operation.starts_with("move " + kBackup + "2 "); };
  EXPECT_EQ(BackupRoll(t.program), 1);
  EXPECT_EQ(titleIn(kBackup + "4"), "Backup 3");
  EXPECT_EQ(titleIn(kBackup + "2"), "Backup 2") << "the first finds its place taken";
  EXPECT_EQ(titleIn(kBackup + "1"), "On disk");
}

TEST_F(BackupTest, ASaveGoesOnWithoutItsBackup) {
  openWithBackups({});
  t.files.shallFail = [](const std::string& operation) { return operation.starts_with("makeFolder"); };
  project.storeTitle.assign("After");
  EXPECT_TRUE(ProjectSaveNow(t.program));
  EXPECT_EQ(titleIn(kProjectPath), "After");
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(BackupTest, TheListHoldsEveryFileByName) {
  openWithBackups({1, 2, 10});
  t.files.put(kFolder + "\\notes.txt", "mine");
  EXPECT_EQ(listedNames(),
            (std::vector<std::string>{kFolder + "\\notes.txt", kBackup + "1", kBackup + "10", kBackup + "2"}));
}

TEST_F(BackupTest, TheListTellsTimeAndSize) {
  openWithBackups({});
  t.files.put(kBackup + "1", "TIME=1044072306\nVERSION=107001\n");
  const std::vector<BackupEntry> backups = BackupListRead(t.program);
  ASSERT_EQ(backups.size(), 1U);
  EXPECT_EQ(backups[0].path, kBackup + "1");
  EXPECT_EQ(backups[0].time, 1044072306);
  EXPECT_EQ(backups[0].size, 31U);
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(BackupTest, ABackupTellsTheTimeOfTheSaveThatWroteIt) {
  LoadText(t, stateText("First"));
  saveAs("Second");
  t.clock.set(kTestTime + 60);
  saveAs("Third");
  const std::vector<BackupEntry> backups = BackupListRead(t.program);
  ASSERT_EQ(backups.size(), 2U);
  EXPECT_EQ(backups[0].time, kTestTime);
  EXPECT_EQ(backups[1].time, 0) << "what was opened had no time";
}

TEST_F(BackupTest, AForeignFileHasTheTimeZero) {
  openWithBackups({});
  t.files.put(kFolder + "\\1.txt", "notes");
  t.files.put(kFolder + "\\2.txt", "");
  t.files.put(kFolder + "\\3.txt", "VERSION=107001\nTIME=5\n");
  t.files.put(kFolder + "\\4.txt", " TIME=5\n");
  t.files.put(kFolder + "\\5.txt", "time=5\n");
  const std::vector<BackupEntry> backups = BackupListRead(t.program);
  ASSERT_EQ(backups.size(), 5U);
  for (const BackupEntry& entry : backups) EXPECT_EQ(entry.time, 0) << entry.path;
  EXPECT_EQ(backups[1].size, 0U);
}

TEST_F(BackupTest, FoldersAreNotListed) {
  openWithBackups({1});
  t.files.putFolder(kFolder + "\\Old");
  EXPECT_EQ(listedNames(), std::vector<std::string>{kBackup + "1"});
}

TEST_F(BackupTest, WithoutTheFolderTheListIsEmpty) {
  openWithBackups({});
  EXPECT_TRUE(BackupListRead(t.program).empty());
}

TEST_F(BackupTest, WithoutAProjectTheListIsEmpty) {
  t.files.put("Backup\\a.stp.1", "TIME=1\n");
  t.files.put("C:\\Backup\\a.stp.1", "TIME=1\n");
  EXPECT_TRUE(BackupListRead(t.program).empty());
}

TEST_F(BackupTest, TheListIsReadAnewEachTime) {
  openWithBackups({1, 2});
  EXPECT_EQ(listedNames().size(), 2U);
  t.files.remove(kBackup + "1");
  EXPECT_EQ(listedNames(), std::vector<std::string>{kBackup + "2"});
}

// A disk whose listed files can't be opened, and that keeps the paths as they are asked for.
class LockedFiles : public FilesWrapper {
 public:
  using FilesWrapper::FilesWrapper;
  std::vector<std::string> folders;
  FileHandle openRead(std::string_view) override { return kNoFile; }
  MakeFolderResult makeFolder(std::string_view path) override {
    folders.emplace_back(path);
    return FilesWrapper::makeFolder(path);
  }
};

TEST_F(BackupTest, AFileThatCanNotBeOpenedIsListedWithTheTimeZero) {
  openWithBackups({});
  t.files.put(kBackup + "1", "TIME=5\n");
  LockedFiles locked(t.files);
  Program program(locked, t.clock, t.screen, t.clipboard, t.view);
  program.project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  const std::vector<BackupEntry> backups = BackupListRead(program);
  ASSERT_EQ(backups.size(), 1U);
  EXPECT_EQ(backups[0].time, 0);
  EXPECT_EQ(backups[0].size, 7U);
}

TEST_F(BackupTest, ADoubledBackSlashInThePathOfTheFolderIsReduced) {
  LockedFiles raw(t.files);
  Program program(raw, t.clock, t.screen, t.clipboard, t.view);
  program.project.projectFile.assign("C:\\\\shop.stp");
  program.project.projectDir.assign("C:\\");
  BackupRoll(program);
  EXPECT_EQ(raw.folders, std::vector<std::string>{"C:\\Backup"});
}

// The copy is the last of the twelve operations of a roll.
TEST_F(BackupTest, ACopyThatBreaksOffIsTakenAway) {
  openWithBackups({1, 2});
  FailingFiles disk(t.files, 12, Failure::NoSpace);
  Program program(disk, t.clock, t.screen, t.clipboard, t.view);
  program.project.projectFile = project.projectFile;
  program.project.projectDir = project.projectDir;
  EXPECT_EQ(BackupRoll(program), 0);
  ASSERT_EQ(disk.failedOperation(), "copy");
  EXPECT_EQ(titleIn(kBackup + "1"), "(no file)");
  EXPECT_EQ(titleIn(kBackup + "2"), "Backup 1");
}

class FullDiskTest : public BackupTest {
 protected:
  // Saves a changed title while nothing more goes into the project's file.
  bool saveOnFullDisk(const std::string& title) {
    project.storeTitle.assign(std::string_view(title));
    t.files.shallFail = [](const std::string& operation) {
      return operation == std::string("write ") + kProjectPath;
    };
    const bool saved = SaveWithBackup(t.program);
    t.files.shallFail = nullptr;
    return saved;
  }
};

TEST_F(FullDiskTest, TheMessageNamesTheBackupThatHoldsTheStateBefore) {
  openWithBackups({1});
  EXPECT_FALSE(saveOnFullDisk("Lost"));
  EXPECT_EQ(titleIn(kProjectPath), "(no title)");
  EXPECT_EQ(titleIn(kBackup + "1"), "On disk");
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_NE(t.screen.boxes[0].text.find("'" + kBackup + "1'"), std::string::npos);
}

TEST_F(FullDiskTest, TryingAgainAndAgainDoesNotPushTheBackupsOut) {
  openWithBackups({1});
  for (int i = 0; i < 12; ++i) EXPECT_FALSE(saveOnFullDisk("Lost"));
  EXPECT_EQ(titleIn(kBackup + "1"), "On disk");
  EXPECT_EQ(titleIn(kBackup + "2"), "Backup 1");
  EXPECT_EQ(t.files.search(kFolder + "\\*.*").size(), 2U);
}

TEST_F(FullDiskTest, BackupsGoOnAfterASaveThatSucceeds) {
  openWithBackups({});
  EXPECT_FALSE(saveOnFullDisk("Lost"));
  saveAs("Saved");
  EXPECT_EQ(titleIn(kBackup + "1"), "On disk");
  saveAs("Next");
  EXPECT_EQ(titleIn(kBackup + "1"), "Saved");
  EXPECT_EQ(titleIn(kBackup + "2"), "On disk");
}

TEST_F(FullDiskTest, AProjectOfAnotherNameHasItsBackups) {
  openWithBackups({});
  EXPECT_FALSE(saveOnFullDisk("Lost"));
  t.files.put("Projects\\Other\\Other.stp", stateText("Other on disk"));
  ProjectOpenPath(t.program, "C:\\Varlo\\Projects\\Other\\Other.stp", false);
  saveAs("Other");
  EXPECT_EQ(titleIn("C:\\Varlo\\Projects\\Other\\Backup\\Other.stp.1"), "Other on disk");
}

TEST_F(FullDiskTest, ARestoredProjectHasItsBackups) {
  openWithBackups({});
  EXPECT_FALSE(saveOnFullDisk("Lost"));
  EXPECT_TRUE(ProjectRestore(t.program, kBackup + "1"));
  saveAs("Saved");
  EXPECT_EQ(titleIn(kBackup + "1"), "On disk");
  EXPECT_EQ(titleIn(kBackup + "2"), "On disk");
}

}  // namespace
}  // namespace varlo
