#include "core/program/start_up.h"

#include <cstdlib>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "core/text/open_file.h"

namespace varlo {
namespace {

constexpr const char* kDemoPage = "Projects\\Demo\\Web\\index.html";

void run(const std::function<void(Program&)>& step, Program& program) {
  if (step) step(program);
}

SchemeRecord* makeDefault(const StartUpSteps& steps, const char* name) {
  SchemeRecord* record = SchemeInit(nullptr);
  record->name.assign(name);
  if (steps.setSchemeDefaults) steps.setSchemeDefaults(*record);
  return record;
}

// Makes the catalogue usable when the files gave no style or no scheme.
void completeCatalogue(AppConfig& config, const StartUpSteps& steps) {
  if (config.schemeStyles == nullptr) {
    config.schemeStyles = config.currentStyle = makeDefault(steps, "Varlo Default");
  }
  SchemeStyle* style = config.currentStyle;
  if (style == nullptr || style->schemes != nullptr) return;
  style->schemes = config.currentScheme = makeDefault(steps, "Default");
  style->schemes->prev = style;
}

void decideFirstCommand(Program& program) {
  if (!program.config.orderServer.isSet()) {
    program.screen.postCommand(Command::Upgrade);
  } else if (!program.project.projectFile.isSet()) {
    program.screen.postCommand(Command::NewStore);
  }
}

}  // namespace

void MakeDefaultVariable(StoreProject& project) {
  if (project.variables != nullptr) return;
  UserVariable* copyright = UserVariableInit(nullptr);
  copyright->name.assign("$COPYRIGHT");
  copyright->value.assign(
      "Copyright \xA9"
      "2000");
  UserVariableAppend(project, copyright);
  project.currentVariable = copyright;
}

void StartUp(Program& program, const StartUpSteps& steps) {
  AppConfig& config = program.config;
  StoreProject& project = program.project;
  for (std::size_t i = 0; i < kDefaultMethodNames.size(); ++i) project.methodName[i].assign(kDefaultMethodNames[i]);
  SchemeListFree(program, config.schemeStyles);
  std::srand(static_cast<unsigned>(program.clock.now()));
  run(steps.readRegionCatalogue, program);
  run(steps.readSchemeCatalogue, program);
  run(steps.readConfig, program);
  run(steps.readCardCatalogue, program);
  run(steps.readTemplateVersions, program);
  completeCatalogue(config, steps);
  MakeDefaultVariable(project);
  if (config.currentStyle == nullptr) config.currentStyle = config.schemeStyles;
  run(steps.detectBrowsers, program);
  for (TextSlot& slot : program.slots) slot.release();
  for (Text& name : project.templateNames) name.release();
}

void StartUpInWindow(Program& program, const WindowSteps& steps) {
  WaitCursorOn(program);
  if (steps.loadProject && program.project.projectFile.isSet()) steps.loadProject(program);
  run(steps.openPage, program);
  WaitCursorOff(program);
  run(steps.show, program);
  decideFirstCommand(program);
  if (FileExists(program.files, "config.ini") == 0) ++program.config.firstRun;
}

void ContinueAfterUpgrade(Program& program, const std::function<void(Program&, const char*)>& openInBrowser) {
  if (program.config.firstRun != 0) {
    openInBrowser(program, kDemoPage);
    program.config.firstRun = 0;
  }
  if (!program.project.projectFile.isSet()) program.screen.postCommand(Command::NewStore);
}

PromptResult AskToSave(Program& program, const std::function<bool(Program&)>& saveWithBackup) {
  if (program.project.dirty == 0) return PromptResult::Unasked;
  const Answer answer = program.screen.messageBox({.text = message::kSavePrompt,
                                                   .title = message::kSavePromptTitle,
                                                   .buttons = Buttons::YesNo,
                                                   .icon = Icon::Question});
  if (answer != Answer::Yes) return PromptResult::Unasked;
  return saveWithBackup(program) ? PromptResult::Saved : PromptResult::Failed;
}

void ShutDown(Program& program, const ShutDownSteps& steps) {
  AskToSave(program, steps.saveWithBackup);
  program.project.dirty = 0;
}

void ShutDownWindow(Program& program, const ShutDownSteps& steps) {
  run(steps.stopBuild, program);
  run(steps.saveConfig, program);
  AskToSave(program, steps.saveWithBackup);
  program.config.browser.release();
  program.config.proxy.release();
  program.config.orderServer.release();
}

}  // namespace varlo
