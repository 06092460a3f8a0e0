#include "shell/browser/browser_detection.h"

#include <array>
#include <string>

#include "core/program/program.h"
#include "core/text/open_file.h"
#include "platform/browser_system.h"

namespace varlo {
namespace {

// Where browsers were installed in their time.
constexpr std::array<std::string_view, 5> kUsualPlaces{
    "c:\\Program Files\\Internet Explorer\\iexplore.exe",
    "c:\\Program Files\\Netscape\\Communicator\\Program\\netscape.exe",
    "c:\\Program Files\\Netscape\\Navigator\\Program\\netscape.exe",
    "c:\\Netscape\\netscape.exe",
    "c:\\iexplore\\iexplore.exe",
};

// Takes the program that the registry names for a class of documents; false when it names none.
bool detect(BrowserSystem& browsers, const char* documentClass, Text& browser) {
  const std::optional<std::string> icon = browsers.classesValue(std::string(documentClass).append("\\DefaultIcon"));
  if (!icon) return false;
  browser.assign(std::string_view(*icon).substr(0, icon->find(',')));
  return true;
}

// The first of the usual places that holds a browser. Deliberate: without any the first one all the same.
std::string_view usualBrowser(Files& files) {
  for (const std::string_view place : kUsualPlaces) {
    if (FileExists(files, place) == 1) return place;
  }
  return kUsualPlaces[0];
}

}  // namespace

void detectBrowsers(Program& program, BrowserSystem& browsers) {
  AppConfig& config = program.config;
  const bool explorer = detect(browsers, "htmlfile", config.browserExplorer);
  const bool netscape = detect(browsers, "NetscapeMarkup", config.browserNetscape);
  if (!config.browser.isSet()) {
    config.browser = config.browserExplorer.isSet() ? config.browserExplorer : config.browserNetscape;
  }
  if (!explorer && !netscape && !config.browser.isSet()) config.browser.assign(usualBrowser(program.files));
}

}  // namespace varlo
