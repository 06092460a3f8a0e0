// The view of the command-line program: it shows nothing, but can start a browser.
#pragma once

#include <string_view>

#include "core/program/view.h"
#include "platform/machine.h"

namespace varlo {

struct Program;

class ConsoleView : public View {
 public:
  explicit ConsoleView(Machine& machine) : machine_(machine) {}

  // From now on pages that the program shows go to the browser of the program's configuration.
  void showPages(Program& program) { program_ = &program; }

  void openInBrowser(std::string_view address) override;

 private:
  Machine& machine_;
  Program* program_ = nullptr;
};

}  // namespace varlo
