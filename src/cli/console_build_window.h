// What a build shows on the terminal: its log on standard output, line by line, and a progress bar on standard
// error when a person is there to see it.
#pragma once

#include <cstdint>

#include "generator/state/build_log.h"

namespace varlo {

class ConsoleBuildWindow : public BuildWindow {
 public:
  // `pages` is the top of the progress bar.
  explicit ConsoleBuildWindow(std::int32_t pages);
  ~ConsoleBuildWindow() override { wipeBar(); }
  ConsoleBuildWindow(const ConsoleBuildWindow&) = delete;
  ConsoleBuildWindow& operator=(const ConsoleBuildWindow&) = delete;

  void clearLog() override {}
  void addLogLine(std::string_view line) override;
  void stepProgress() override;
  void resetProgress() override;
  void showLabel(std::string_view /*label*/) override {}

 private:
  void drawBar();
  void wipeBar();

  bool hasBar_;
  std::int64_t pages_;
  std::int64_t done_ = 0;
  std::int64_t drawn_ = -1;  // parts of the bar that are on the terminal; -1 for no bar
};

}  // namespace varlo
