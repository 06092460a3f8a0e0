// TabPage: the logic that the pages of all tabs share.
#pragma once

#include "shell/state/page_logic.h"

namespace varlo {

struct Shell;

class TabPage : public PageLogic {
 public:
  explicit TabPage(Shell& shell) : shell_(shell) {}

  // The page is the shell's from here to `closed`.
  void opened(Dialog& page) override;
  void notified(Dialog& page, const ControlEvent& event) override;
  // Escape on a page ends the program, as everywhere in its window.
  void closeRequested(Dialog& page) override;
  void closed() override;

 protected:
  // Prepares the controls before the form is loaded for the first time.
  virtual void prepare(Dialog& /*page*/) {}

  Shell& shell_;
};

}  // namespace varlo
