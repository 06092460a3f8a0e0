// The store wizard's state: the mode of a run, its page, and the working values, which keep their content from one
// run to the next until the program ends.
#pragma once

#include <array>
#include <cstdint>

#include "commerce/freight/freight_calculation.h"
#include "commerce/tax/tax_settings.h"
#include "core/store/freight_record.h"
#include "core/text/text.h"

namespace varlo {

struct Program;

// What a run is for. The first is the whole wizard, the others edit a part of the open store.
enum class WizardMode { NewStore, Freight, Regions, Methods, Tax };
inline constexpr std::size_t kWizardModes = 5;

// The pages in their full order, and how a run can end.
enum class WizardPage {
  Welcome,
  Folder,
  Title,
  Layout,
  Cards,
  Order,
  Confirmation,
  FreightStart,
  Methods,
  Regions,
  Calculation,
  Price,
  TaxEnable,
  TaxMethod,
  TaxableRegions,
  TaxRates,
  FreightTax,
  Finish,
  Ended,
  Cancelled,
};
inline constexpr std::size_t kWizardPages = static_cast<std::size_t>(WizardPage::Ended);

struct WizardState {
  WizardMode mode = WizardMode::NewStore;
  WizardPage page = WizardPage::Cancelled;

  Text workFolder;  // name of the project's folder
  Text workTitle;
  Text workOrderMessage;
  Text workConfirmMessage;
  std::array<Text, kFreightMethods> workMethodName;
  FreightCalculation workCalcMethod = FreightCalculation::ByWeight;
  Text workPrice;  // freight charge for an order, as typed
  std::int32_t workTaxEnabled = 0;
  std::int32_t workTaxOption = kTaxByRegion;
  Text workFreightTaxRate;
};

// Begins a run on the first page of its mode: offers to save a titled store that a new one would replace, and gives
// the working values that are absent their values from the store. Deliberate: an empty value counts as absent; the
// tax switches are loaded with a freight rate alone; and where only the second method has no name, its default takes
// the place of the first.
void WizardStart(Program& program, WizardState& state, WizardMode mode);

}  // namespace varlo
