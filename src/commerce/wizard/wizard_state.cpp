#include "commerce/wizard/wizard_state.h"

#include <string_view>

#include "core/program/program.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

constexpr std::array<WizardPage, kWizardModes> kFirstPages{
    WizardPage::Welcome, WizardPage::FreightStart, WizardPage::Regions, WizardPage::Methods, WizardPage::TaxEnable};

constexpr std::string_view kOrderMessage =
    "This form is running on an Varlo Secure Server.<br>\r\nAll information will be encrypted before transmission.";
constexpr std::string_view kConfirmMessage = "Thank you for your order.";

void loadTax(WizardState& state, const TaxSettings& tax) {
  if (state.workFreightTaxRate.isSet() || !tax.freightTaxRate.isSet()) return;
  state.workFreightTaxRate = tax.freightTaxRate;
  state.workTaxOption = tax.taxOption;
  state.workTaxEnabled = tax.taxEnabled;
}

void assignOr(Text& target, const Text& source, std::string_view otherwise) {
  target.assign(source.isSet() ? source.view() : otherwise);
}

void loadMethodNames(WizardState& state, const std::array<Text, kFreightMethods>& names) {
  if (state.workMethodName[0].isSet()) return;
  assignOr(state.workMethodName[0], names[0], kDefaultMethodNames[0]);
  state.workMethodName[1] = names[1];
  if (!names[1].isSet()) state.workMethodName[0].assign(kDefaultMethodNames[1]);
  assignOr(state.workMethodName[2], names[2], kDefaultMethodNames[2]);
}

}  // namespace

void WizardStart(Program& program, WizardState& state, WizardMode mode) {
  state.mode = mode;
  state.page = kFirstPages[static_cast<std::size_t>(mode)];
  if (mode == WizardMode::NewStore && program.project.storeTitle.isSet()) SavePrompt(program);
  loadTax(state, program.project.tax);
  loadMethodNames(state, program.project.methodName);
  if (!state.workOrderMessage.isSet()) state.workOrderMessage.assign(kOrderMessage);
  if (!state.workConfirmMessage.isSet()) state.workConfirmMessage.assign(kConfirmMessage);
}

}  // namespace varlo
