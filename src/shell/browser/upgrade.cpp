#include "shell/browser/upgrade.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/open_file.h"
#include "persist/life/start_up.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

constexpr const char* kUpgradeProgram = "upgrade.exe";
constexpr const char* kNewUpgradeProgram = "upgrade.new";

// The upgrade program delivers itself under another name, as it can't be written over while it runs.
void takeNewUpgradeProgram(Files& files) {
  if (FileExists(files, kNewUpgradeProgram) == 0) return;
  files.remove(kUpgradeProgram);
  files.move(kNewUpgradeProgram, kUpgradeProgram);
}

void addControlAddress(std::string& fields, std::string_view site) {
  fields.append("CONTROL=").append(site).append("/cgi-bin/getfile?filename=vc;");
}

}  // namespace

std::string upgradeControlString(const Program& program) {
  const AppConfig& config = program.config;
  const std::string version = FillMessage("%s.%s", {kProductVersion, kProductRelease});
  std::string templates;
  if (config.schemeTemplateSet.isSet() && config.accountId.isSet()) {
    templates = FillMessage("C=Templates,%s;", config.schemeTemplateSet.view());
  }
  std::string fields = FillMessage("TITLE=Varlo PRO Upgrade;C=Varlo PRO,%s;%s", {version, templates});
  addControlAddress(fields, kProductSite);
  for (const std::string_view mirror : kUpdateMirrors) addControlAddress(fields, mirror);
  return fields;
}

void launchUpgrade(Shell& shell) {
  Program& program = shell.program;
  takeNewUpgradeProgram(program.files);
  if (!shell.browsers.start(kUpgradeProgram, upgradeControlString(program))) {
    program.screen.messageBox(
        {.text = message::kUpgradeError, .title = message::kUpgradeErrorTitle, .icon = Icon::Exclamation});
  }
  ContinueAfterUpgrade(program);
}

}  // namespace varlo
