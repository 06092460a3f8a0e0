// The logic of the dialog "Build", which a preview opens when the store has no web directory yet.
#pragma once

#include "platform/dialog.h"

namespace varlo {

struct Generator;

namespace first_build {
enum : ControlId { kWindow = 1400, kDirectory, kTitle };
}

// Ends with 1 when a directory was named and made; it stays webDir for the rest of the run. Ends with 0, and
// with the stop flag raised, when the user cancelled.
class FirstBuildDialog : public DialogLogic {
 public:
  explicit FirstBuildDialog(Generator& generator) : generator_(generator) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  void closeRequested(Dialog& dialog) override;

 private:
  void accept(Dialog& dialog);

  Generator& generator_;
};

}  // namespace varlo
