#include "shell/browser/order_server.h"

#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"

namespace varlo {

bool requireServer(Shell& shell) {
  if (shell.program.config.orderServer.isSet()) return true;
  shell.program.screen.messageBox(
      {.text = message::kServerMissing, .title = message::kConfigurationError, .icon = Icon::Stop});
  return false;
}

void viewOrders(Shell& shell) {
  if (!requireServer(shell)) return;
  const AppConfig& config = shell.program.config;
  const std::string_view server = config.orderServer.view();
  std::string address = server.find(':') == std::string_view::npos ? "https://" : "";
  address.append(server).append("?SN=").append(config.accountId.view());
  openInBrowser(shell, address);
}

}  // namespace varlo
