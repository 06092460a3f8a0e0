#include "shell/browser.h"
#include "shell/form.h"
#include "shell/pages.h"
#include "shell/preview_command.h"
namespace varlo {
void loadForm(Shell&) {}
void readForm(Shell&) {}
bool onFieldCommand(Shell&, const ControlEvent&) { return false; }
bool formDiffers(const StoreNode*, const StoreNode*) { return false; }
void digitsOnly(Dialog&, ControlId) {}
const TabTraits& traitsOf(Tab) {
  static const TabTraits traits;
  return traits;
}
std::unique_ptr<DialogLogic> makePage(Shell&, Tab) { return nullptr; }
bool launchBrowser(Shell&, std::string_view, std::string_view, int) { return false; }
bool openInBrowser(Shell&, std::string_view) { return false; }
void detectBrowsers(Program&, BrowserSystem&) {}
void previewCurrent(Shell&) {}
}  // namespace varlo
