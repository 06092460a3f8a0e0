// The dialog "Tax Options": a summary of the store's tax settings.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/store/freight_record.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace tax_options {

enum : ControlId {
  kWindow = 3600,
  kRegions,
  kFreightRate,
  kNoTax,
  kByProduct,
  kByRegion,
  kEdit,
};

}  // namespace tax_options

class TaxOptionsDialog : public DialogLogic {
 public:
  // `runTaxWizard` takes the user through the tax pages.
  TaxOptionsDialog(Program& program, std::function<void()> runTaxWizard)
      : program_(program), runTaxWizard_(std::move(runTaxWizard)) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }
  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  std::string cellText(ControlId list, int row, int column) override;

 private:
  void refresh(Dialog& dialog);
  void pressed(Dialog& dialog, ControlId button);
  void askToChange(Dialog& dialog);
  void edit(Dialog& dialog);

  Program& program_;
  std::function<void()> runTaxWizard_;
  std::vector<FreightRegion*> rows_;
  bool asking_ = false;
};

}  // namespace varlo
