// What is special about single pages of the store wizard: their lists, and what moves in them.
#pragma once

#include <memory>
#include <string>

#include "commerce/wizard/wizard_state.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

// A page whose fields are all that it has needs none of this.
class PageContent {
 public:
  virtual ~PageContent() = default;
  // Fills the lists as the page opens.
  virtual void open(Dialog& /*dialog*/) {}
  virtual void control(Dialog& /*dialog*/, const ControlEvent& /*event*/) {}
  // Next or Back was pressed.
  virtual void leave(Dialog& /*dialog*/) {}
  virtual std::string text(ControlId /*list*/, int /*row*/, int /*column*/) { return {}; }
  virtual int mark(ControlId /*list*/, int /*row*/) { return 0; }
};

// The content of the page that the run is on.
[[nodiscard]] std::unique_ptr<PageContent> MakePageContent(Program& program, const WizardState& state);

}  // namespace varlo
