#include "core/program/messages.h"
#include "core/program/program.h"
#include "shell/commands.h"
#include "shell/shell.h"

namespace varlo {

bool requireServer(Shell& shell) {
  if (shell.program.config.orderServer.isSet()) return true;
  shell.program.screen.messageBox(
      {.text = message::kServerMissing, .title = message::kConfigurationError, .icon = Icon::Stop});
  return false;
}

}  // namespace varlo
