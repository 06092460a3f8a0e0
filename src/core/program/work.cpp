#include "core/program/work.h"

#include "core/program/program.h"

namespace varlo {

Work::Work(Program& program) {
  if (program.atWork) return;
  program_ = &program;
  program.atWork = true;
  program.view.workBegan();
}

Work::~Work() {
  if (program_ == nullptr) return;
  program_->atWork = false;
  program_->view.workEnded();
}

}  // namespace varlo
