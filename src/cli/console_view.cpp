#include "cli/console_view.h"

#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"

namespace varlo {

void ConsoleView::openInBrowser(std::string_view address) {
  if (program_ == nullptr) return;
  const std::string browser(program_->config.browser.view());
  if (machine_.browsers->start(browser, std::string(address))) return;
  program_->screen.messageBox(
      {.text = message::kBrowserError, .title = message::kBrowserErrorTitle, .icon = Icon::Exclamation});
}

}  // namespace varlo
