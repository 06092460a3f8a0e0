// The windows of the store wizard: what is on each page.
#pragma once

#include <span>

#include "commerce/wizard/wizard_state.h"
#include "platform/dialog.h"

namespace varlo {

namespace wizard {

enum : ControlId {
  kFirstWindow = 3000,  // those of the pages follow in their order
  kLoneRegions = kFirstWindow + static_cast<ControlId>(kWizardPages),
  kLoneMethods,

  kBack = 3050,
  kNext,

  kFolder = 3060,
  kTitle,
  kStyles,
  kSchemes,
  kPicture,
  kPreview,
  kOrderMessage,
  kConfirmMessage,
  kMethod1,
  kMethod2,
  kMethod3,
  kByWeight,
  kPerItem,
  kPerOrder,
  kNoCharge,
  kExplanation,
  kPrice,
  kTaxOn,
  kTaxOff,
  kProductTax,
  kRegionTax,
  kFreightRate,
};

}  // namespace wizard

// The shapes of all pages, and behind them of the dialogs "Add/Remove Freight Regions" and "Delivery Methods".
[[nodiscard]] std::span<const DialogShape> WizardShapes();

// The shape of the page that the run is on; of a run that is over, that of the last page.
[[nodiscard]] const DialogShape& WizardShape(const WizardState& state);

// Whether the page stands alone, in a dialog of its own.
[[nodiscard]] bool IsLonePage(const WizardState& state);

}  // namespace varlo
