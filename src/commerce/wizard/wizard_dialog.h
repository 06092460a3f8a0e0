// The store wizard's window: one window, whose controls are those of the page that the run is on.
#pragma once

#include <memory>
#include <string>

#include "commerce/wizard/page_content.h"
#include "platform/dialog.h"

namespace varlo {

class WizardDialog : public DialogLogic {
 public:
  WizardDialog(Program& program, WizardState& state);

  [[nodiscard]] const DialogShape& shape() const override;
  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  std::string cellText(ControlId list, int row, int column) override;
  int rowMark(ControlId list, int row) override;

 private:
  void openPage(Dialog& dialog);
  void giveFocus(Dialog& dialog);
  void checkNext(Dialog& dialog);
  void pressed(Dialog& dialog, ControlId button);
  void store(Dialog& dialog);
  void goOn(Dialog& dialog);
  void goBack(Dialog& dialog);
  // Shows the page that the run has come to, or ends the window.
  void show(Dialog& dialog);

  Program& program_;
  WizardState& state_;
  std::unique_ptr<PageContent> content_;
  bool nextEnabled_ = false;
};

// Takes the user through the pages of a mode, and carries out what was chosen, unless the run is cancelled.
void RunWizard(Program& program, WizardState& state, WizardMode mode);

// Shows the dialog "Tax Options", from which the tax pages are run.
void ShowTaxOptions(Program& program, WizardState& state);

}  // namespace varlo
