#include "generator/state/build_log.h"

namespace varlo {

void LogBuild(BuildLog& log, std::string_view line) {
  if (log.buildWindow == nullptr) return;
  log.buildWindow->addLogLine(line);
  ++log.logLines;
}

void LogError(BuildLog& log, std::string_view line) {
  LogBuild(log, line);
  ++log.errorCount;
}

void LogWarning(BuildLog& log, std::string_view line) {
  LogBuild(log, line);
  ++log.warningCount;
}

}  // namespace varlo
