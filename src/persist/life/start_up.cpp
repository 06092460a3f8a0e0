#include "persist/life/start_up.h"

#include <cstdlib>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "core/text/open_file.h"
#include "persist/installation/config_file.h"
#include "persist/installation/list_files.h"
#include "persist/installation/scheme_catalogue.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

constexpr const char* kDemoPage = "Projects\\Demo\\Web\\index.html";

void nameMethods(StoreProject& project) {
  for (std::size_t i = 0; i < kDefaultMethodNames.size(); ++i) project.methodName[i].assign(kDefaultMethodNames[i]);
}

void readInstallation(Program& program) {
  RegionCatalogueRead(program);
  SchemeCatalogueRead(program, "scheme.dat");
  SchemeCatalogueRead(program, "scheme.ini");
  ConfigRead(program, "config.ini");
  ConfigRead(program, "server.ini");
  CardCatalogueRead(program);
  TemplateVersionsRead(program);
}

SchemeRecord* makeDefault(const char* name) {
  SchemeRecord* record = SchemeInit(nullptr);
  record->name.assign(name);
  SchemeDefaults(*record);
  return record;
}

// Makes the catalogue usable when the files gave no style or no scheme.
void completeCatalogue(AppConfig& config) {
  if (config.schemeStyles == nullptr) config.schemeStyles = config.currentStyle = makeDefault("Varlo Default");
  SchemeStyle* style = config.currentStyle;
  if (style == nullptr || style->schemes != nullptr) return;
  style->schemes = config.currentScheme = makeDefault("Default");
  style->schemes->prev = style;
}

}  // namespace

void StartUp(Program& program) {
  AppConfig& config = program.config;
  nameMethods(program.project);
  SchemeListFree(program, config.schemeStyles);
  std::srand(static_cast<unsigned>(program.clock.now()));
  readInstallation(program);
  completeCatalogue(config);
  MakeDefaultVariable(program.project);
  if (config.currentStyle == nullptr) config.currentStyle = config.schemeStyles;
  for (TextSlot& slot : program.slots) slot.release();
  for (Text& name : program.project.templateNames) name.release();
}

void PostFirstCommand(Program& program) {
  if (!program.config.orderServer.isSet()) {
    program.screen.postCommand(Command::Upgrade);
  } else if (!program.project.projectFile.isSet()) {
    program.screen.postCommand(Command::NewStore);
  }
  if (FileExists(program.files, "config.ini") == 0) ++program.config.firstRun;
}

void ContinueAfterUpgrade(Program& program) {
  if (program.config.firstRun != 0) {
    program.view.openInBrowser(kDemoPage);
    program.config.firstRun = 0;
  }
  if (!program.project.projectFile.isSet()) program.screen.postCommand(Command::NewStore);
}

void ShutDown(Program& program) {
  SavePrompt(program);
  program.project.dirty = 0;
}

void ShutDownWindow(Program& program) {
  ConfigSave(program);
  SavePrompt(program);
  program.config.browser.release();
  program.config.proxy.release();
  program.config.orderServer.release();
}

}  // namespace varlo
