#include "commerce/wizard/wizard_pages.h"

#include "core/program/program.h"

namespace varlo {
namespace {

using Page = WizardPage;

// A step that depends on nothing.
template <Page page>
Page to(const WizardState& /*state*/) {
  return page;
}

bool inEveryMode(WizardMode /*mode*/) { return true; }
bool inNoMode(WizardMode /*mode*/) { return false; }
bool inNewStore(WizardMode mode) { return mode == WizardMode::NewStore; }
bool notAlone(WizardMode mode) { return mode != WizardMode::Regions; }
bool notInTax(WizardMode mode) { return mode != WizardMode::Tax; }

Page behindMethods(const WizardState& state) {
  return state.mode == WizardMode::Methods ? Page::Ended : Page::Regions;
}
Page behindRegions(const WizardState& state) {
  return state.mode == WizardMode::Regions ? Page::Ended : Page::Calculation;
}
Page behindFreight(const WizardState& state) {
  return state.mode == WizardMode::Freight ? Page::Ended : Page::TaxEnable;
}
Page lastFreightPage(const WizardState& state) {
  return state.workCalcMethod == FreightCalculation::PerOrder ? Page::Price : Page::Calculation;
}
Page behindCalculation(const WizardState& state) {
  return lastFreightPage(state) == Page::Price ? Page::Price : behindFreight(state);
}
Page behindTax(const WizardState& state) { return state.mode == WizardMode::Tax ? Page::Ended : Page::Finish; }
Page behindTaxEnable(const WizardState& state) {
  return state.workTaxEnabled != 0 ? Page::TaxMethod : behindTax(state);
}
Page regionTaxPage(const WizardState& state) {
  return state.workTaxOption == kTaxByProduct ? Page::TaxableRegions : Page::TaxRates;
}
Page lastTaxPage(const WizardState& state) { return state.workTaxEnabled > 0 ? Page::FreightTax : Page::TaxEnable; }

constexpr std::array<WizardPageRow, kWizardPages> kRows{{
    {"Introduction", NextRule::Always, inNoMode, to<Page::Folder>, to<Page::Welcome>},
    {"Folder Wizard", NextRule::FieldFilled, inEveryMode, to<Page::Title>, to<Page::Welcome>},
    {"Title Wizard", NextRule::FieldFilled, inEveryMode, to<Page::Layout>, to<Page::Folder>},
    {"Layout Wizard", NextRule::Always, inEveryMode, to<Page::Cards>, to<Page::Title>},
    {"Accepted Credit Cards Wizard", NextRule::CardsAccepted, inEveryMode, to<Page::Order>, to<Page::Layout>},
    {"Order Form Wizard", NextRule::Always, inEveryMode, to<Page::Confirmation>, to<Page::Cards>},
    {"Confirmation Wizard", NextRule::Always, inEveryMode, to<Page::Methods>, to<Page::Order>},
    {"Frieght Wizard", NextRule::Always, inNoMode, to<Page::Methods>, to<Page::FreightStart>},
    {"Freight Methods", NextRule::Always, inNewStore, behindMethods, to<Page::Confirmation>},
    {"Countries", NextRule::RegionsSelected, notAlone, behindRegions, to<Page::Methods>},
    {"Calculation Method", NextRule::Always, inEveryMode, behindCalculation, to<Page::Regions>},
    {"Set Shipping Price", NextRule::FieldFilled, inEveryMode, behindFreight, to<Page::Calculation>},
    {"Tax Wizard", NextRule::Always, notInTax, behindTaxEnable, lastFreightPage},
    {"Tax Calculation Methods", NextRule::Always, inEveryMode, regionTaxPage, to<Page::TaxEnable>},
    {"Taxable Regions Selector", NextRule::Always, inEveryMode, to<Page::FreightTax>, to<Page::TaxMethod>},
    {"Taxable Regions Selector", NextRule::Always, inEveryMode, to<Page::FreightTax>, to<Page::TaxMethod>},
    {"Freight Tax", NextRule::Always, inEveryMode, behindTax, regionTaxPage},
    {"Finished", NextRule::Always, inEveryMode, to<Page::Ended>, lastTaxPage},
}};

}  // namespace

const WizardPageRow& RowOf(WizardPage page) { return kRows[static_cast<std::size_t>(page)]; }

bool IsBackEnabled(const WizardState& state) { return IsOnPage(state) && RowOf(state.page).backEnabled(state.mode); }

bool IsNextEnabled(const WizardState& state, const StoreProject& project, std::string_view field) {
  if (!IsOnPage(state)) return false;
  switch (RowOf(state.page).nextRule) {
    case NextRule::FieldFilled:
      return !field.empty();
    case NextRule::CardsAccepted:
      return project.acceptedCards != nullptr;
    case NextRule::RegionsSelected:
      return project.regions != nullptr;
    case NextRule::Always:
      break;
  }
  return true;
}

bool IsNextRechecked(const WizardState& state) { return state.mode != WizardMode::Regions; }

void WizardOpenPage(Program& program, const WizardState& state) {
  if (state.page != Page::TaxableRegions && state.page != Page::TaxRates) return;
  NormalizeRegionTax(program.project.regions, state.workTaxEnabled, state.workTaxOption);
}

void WizardNext(Program& program, WizardState& state) {
  if (!IsOnPage(state)) return;
  if (state.page == Page::Layout) program.project.projectScheme = program.config.currentScheme;
  state.page = RowOf(state.page).next(state);
}

void WizardBack(WizardState& state) {
  if (IsBackEnabled(state)) state.page = RowOf(state.page).back(state);
}

std::string FilteredFolderName(std::string_view typed) {
  std::string name(typed);
  std::erase_if(name, [](char c) { return std::string_view("/\\,;:").find(c) != std::string_view::npos; });
  return name;
}

}  // namespace varlo
