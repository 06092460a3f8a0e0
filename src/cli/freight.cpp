#include <iostream>

#include "cli/commands.h"
#include "cli/guarded_files.h"
#include "cli/headless_program.h"
#include "commerce/freight/freight_expression.h"
#include "core/text/working_text.h"

namespace varlo {

int RunFreight(Machine& machine, const CommandArguments& arguments) {
  GuardedFiles files(*machine.files);
  HeadlessProgram headless(machine, files);
  if (!headless.load(arguments.project)) return kExitFailed;
  WorkingText expression;
  BuildFreightExpression(headless.program().project, expression);
  std::cout << TerminalText(expression.text) << '\n';
  return std::cout.flush() ? kExitDone : kExitFailed;
}

}  // namespace varlo
