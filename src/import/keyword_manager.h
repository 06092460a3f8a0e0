// The logic of the dialog "Keyword Manager": the keywords of the current node, one in each field.
#pragma once

#include "core/text/text.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace keyword_manager {
enum : ControlId {
  kWindow = 1700,
  kTab,
  kClear,
  kAdditional,
  kFirstKeyword,  // the fifteen fields follow each other
};
}

class KeywordManager : public DialogLogic {
 public:
  explicit KeywordManager(Program& program) : program_(program) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;

 private:
  void store(Dialog& dialog);

  Program& program_;
};

// Shows the keywords of the current node; nothing happens without one.
void ShowKeywordManager(Program& program);

}  // namespace varlo
