#include "shell/browser/browser.h"

#include <memory>
#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "shell/state/guards.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

constexpr std::size_t kAddressCut = 255;  // of an address as it is
constexpr std::size_t kFolderCut = 200;   // of the working folder
constexpr std::size_t kFileCut = 256;     // of a file below it

constexpr int kWaitMilliseconds = 10000;
constexpr int kAlwaysStart = 1;  // values of newWindow
constexpr int kSameWindow = 0;

std::string targetOf(Files& files, std::string_view url) {
  if (url.find(':') != std::string_view::npos) return std::string(url.substr(0, kAddressCut));
  return files.workingFolder().substr(0, kFolderCut).append("\\").append(url.substr(0, kFileCut));
}

// Deliberate: a browser without a folder is spoken to under one and the same name, whatever it is.
std::string serviceOf(std::string_view browser) {
  const std::size_t slash = browser.rfind('\\');
  const std::string_view name = slash == std::string_view::npos ? "netscape" : browser.substr(slash + 1);
  return std::string(name.substr(0, name.find('.')));
}

// Brings a running browser to the front, and has it show the target in its window that was active last, or in a
// new one. False when none runs. Deliberate: one that came to the front and then refuses counts as success.
bool showInRunning(BrowserSystem& browsers, const std::string& service, const std::string& target, int newWindow) {
  std::unique_ptr<Conversation> activation = browsers.connect(service, "WWW_Activate");
  if (activation == nullptr) return false;
  activation->request("0xFFFFFFFF,0x0", kWaitMilliseconds);
  activation.reset();
  const std::unique_ptr<Conversation> opening = browsers.connect(service, "WWW_OpenURL");
  if (opening == nullptr) return true;
  const std::string_view window = newWindow == kSameWindow ? "0xFFFFFFFF" : "0x0";
  opening->request(std::string("\"").append(target).append("\",,").append(window), kWaitMilliseconds);
  return true;
}

}  // namespace

bool launchBrowser(Shell& shell, std::string_view browser, std::string_view url, int newWindow) {
  if (shell.launchBusy || url.empty()) return false;
  const Raised busy(shell.launchBusy);
  const std::string program(browser);
  const std::string target = targetOf(shell.program.files, url);
  if (newWindow != kAlwaysStart && showInRunning(shell.browsers, serviceOf(program), target, newWindow)) return true;
  return shell.browsers.start(program, target);
}

bool openInBrowser(Shell& shell, std::string_view url) {
  const AppConfig& config = shell.program.config;
  if (launchBrowser(shell, config.browser.view(), url, config.newWindow)) return true;
  shell.program.screen.messageBox(
      {.text = message::kBrowserError, .title = message::kBrowserErrorTitle, .icon = Icon::Exclamation});
  return false;
}

}  // namespace varlo
