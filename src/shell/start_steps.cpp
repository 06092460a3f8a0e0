#include "shell/start_steps.h"

#include "persist/life/file_steps.h"
#include "shell/browser.h"

namespace varlo {

StartUpSteps startSteps(BrowserSystem& browsers) {
  StartUpSteps steps = FileStartUpSteps();
  steps.detectBrowsers = [&browsers](Program& program) { detectBrowsers(program, browsers); };
  return steps;
}

}  // namespace varlo
