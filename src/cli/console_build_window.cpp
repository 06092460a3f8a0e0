#include "cli/console_build_window.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "platform/machine.h"

namespace varlo {
namespace {

constexpr std::int64_t kBarWidth = 50;

}  // namespace

ConsoleBuildWindow::ConsoleBuildWindow(std::int32_t pages) : hasBar_(ErrorsGoToTerminal()), pages_(pages) {}

void ConsoleBuildWindow::addLogLine(std::string_view line) {
  wipeBar();
  std::cout << TerminalText(line) << std::endl;
}

void ConsoleBuildWindow::stepProgress() {
  ++done_;
  if (hasBar_) drawBar();
}

void ConsoleBuildWindow::resetProgress() {
  wipeBar();
  done_ = 0;
}

// Draws only what a person could see change.
void ConsoleBuildWindow::drawBar() {
  const std::int64_t parts = pages_ <= 0 ? 0 : std::min(kBarWidth, done_ * kBarWidth / pages_);
  if (parts == drawn_) return;
  drawn_ = parts;
  const auto filled = static_cast<std::size_t>(parts);
  const auto left = static_cast<std::size_t>(kBarWidth - parts);
  std::cerr << "\r[" << std::string(filled, '#') << std::string(left, ' ') << ']' << std::flush;
}

void ConsoleBuildWindow::wipeBar() {
  if (drawn_ < 0) return;
  std::cerr << '\r' << std::string(static_cast<std::size_t>(kBarWidth) + 2, ' ') << '\r' << std::flush;
  drawn_ = -1;
}

}  // namespace varlo
