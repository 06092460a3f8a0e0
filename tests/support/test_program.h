// A whole program on fakes, for tests to start from.
#pragma once

#include "core/program/fixed_clock.h"
#include "core/program/process_clipboard.h"
#include "core/program/program.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_screen.h"
#include "tests/support/recording_view.h"

namespace varlo::test {

// 2003-02-01 04:05:06 UTC.
inline constexpr std::int64_t kTestTime = 1044072306;

struct TestProgram {
  FakeFiles files;
  FixedClock clock{kTestTime};
  FakeScreen screen;
  ProcessClipboard clipboard;
  RecordingView view;
  Program program{files, clock, screen, clipboard, view};

  TestProgram();
  ~TestProgram();

  StoreProject& project() { return program.project; }
  AppConfig& config() { return program.config; }
};

}  // namespace varlo::test
