// A whole program on the machine's real files, with nobody at the screen.
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "bench/made_project.h"
#include "core/program/fixed_clock.h"
#include "core/program/process_clipboard.h"
#include "core/program/program.h"
#include "persist/life/start_up.h"
#include "persist/project/project_load.h"
#include "persist/project/project_save.h"
#include "posix/posix_files.h"

namespace varlo::bench {

// Shows nothing, and counts the boxes that somebody would have had to answer.
class QuietScreen : public Screen {
 public:
  Answer messageBox(const MessageBoxRequest& request) override {
    ++boxes_;
    return request.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
  }
  int runTask(std::string_view /*title*/, std::string_view /*text*/, const std::function<int()>& task) override {
    return task();
  }
  void showTaskCount(int /*count*/) override {}
  void setWaitCursor(bool /*on*/) override {}
  std::optional<std::string> chooseFile(const FileChooserRequest& /*request*/) override { return std::nullopt; }
  std::optional<std::string> chooseFolder(std::string_view /*title*/) override { return std::nullopt; }
  std::optional<std::uint32_t> chooseColour(std::uint32_t /*start*/, CustomColours& /*custom*/) override {
    return std::nullopt;
  }
  int runDialog(DialogLogic& /*logic*/) override { return 0; }
  Dialog* openDialog(std::shared_ptr<DialogLogic> /*logic*/) override { return nullptr; }
  Command popupMenu(const PopupMenu& /*menu*/) override { return Command::None; }
  void postCommand(Command /*command*/) override {}

  [[nodiscard]] int boxes() const { return boxes_; }

 private:
  int boxes_ = 0;
};

class BenchProgram {
 public:
  // Starts the program in `folder`, a host path, for the project file of that name in it.
  BenchProgram(const std::string& folder, const std::string& projectName) : files_(folder) {
    StartUp(program_);
    boxesAtStart_ = screen_.boxes();  // of the lists that are not there
    program_.project.projectFile.assign(std::string_view(files_.nameOf(projectName)));
  }

  // Load and save the project; throw std::runtime_error when the program reports anything.
  void load() { check(ProjectLoad(program_) == 1); }
  void save() { check(ProjectSave(program_)); }

  [[nodiscard]] Program& program() { return program_; }
  [[nodiscard]] PosixFiles& files() { return files_; }

 private:
  void check(bool done) const {
    if (!done || screen_.boxes() > boxesAtStart_) throw std::runtime_error("The program reported an error.");
  }

  int boxesAtStart_ = 0;
  PosixFiles files_;
  FixedClock clock_{kMadeProjectTime};
  QuietScreen screen_;
  ProcessClipboard clipboard_;
  View view_;
  Program program_{files_, clock_, screen_, clipboard_, view_};
};

}  // namespace varlo::bench
