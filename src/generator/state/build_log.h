// BuildLog: the state of one build, and the window that shows it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/text/line_writer.h"

namespace varlo {

struct Generator;

// What a build shows while it runs: the Store Build window, or the terminal.
struct BuildWindow {
  virtual ~BuildWindow() = default;
  virtual void clearLog() = 0;
  // Appends a line to the log, scrolls to it and paints it at once.
  virtual void addLogLine(std::string_view line) = 0;
  // Steps the progress bar by one page.
  virtual void stepProgress() = 0;
  // Sets the progress bar to 0.
  virtual void resetProgress() = 0;
  // Shows the name of the file in work beside the bar.
  virtual void showLabel(std::string_view label) = 0;
};

struct BuildLog {
  std::int32_t errorCount = 0;
  std::int32_t warningCount = 0;
  std::int32_t logLines = 0;
  bool stopRequested = false;          // the user wants to stop
  BuildWindow* buildWindow = nullptr;  // its presence is what makes the log and the progress work
  std::optional<LineWriter> index;     // the open index file
};

// Adds a line to the log when there is a window; nothing otherwise, and counters are the caller's.
void LogBuild(BuildLog& log, std::string_view line);

// Logs a line and counts an error or a warning, which is counted without a window as well.
void LogError(BuildLog& log, std::string_view line);
void LogWarning(BuildLog& log, std::string_view line);

}  // namespace varlo
