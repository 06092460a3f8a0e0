#include "shell/tabs/template_choice.h"

#include "core/program/messages.h"
#include "core/program/program.h"

namespace varlo {

std::optional<std::string> chooseTemplateFile(Program& program) {
  return program.screen.chooseFile({.folder = std::string(program.project.projectDir.view()).append("\\template"),
                                    .title = message::kOpenTemplateTitle,
                                    .filter = message::kTemplateFilter,
                                    .extension = {}});
}

bool askForReset(Program& program) {
  return program.screen.messageBox({.text = message::kResetTemplate,
                                    .title = message::kConfirmation,
                                    .buttons = Buttons::YesNoCancel,
                                    .icon = Icon::Question}) == Answer::Yes;
}

}  // namespace varlo
