#include "commerce/wizard/wizard_dialog.h"

#include <span>

#include "commerce/cards/card_page.h"
#include "commerce/freight/region_page.h"
#include "commerce/tax/tax_options_dialog.h"
#include "commerce/tax/tax_pages.h"
#include "commerce/wizard/wizard_end.h"
#include "commerce/wizard/wizard_pages.h"
#include "commerce/wizard/wizard_shapes.h"
#include "core/forms/fields.h"
#include "core/program/program.h"

namespace varlo {
namespace {

using namespace wizard;
using WizardField = Field<WizardState>;

constexpr WizardField kFolderField[] = {{kFolder, [](WizardState& state) -> Text& { return state.workFolder; }}};
constexpr WizardField kTitleField[] = {{kTitle, [](WizardState& state) -> Text& { return state.workTitle; }}};
constexpr WizardField kOrderField[] = {
    {kOrderMessage, [](WizardState& state) -> Text& { return state.workOrderMessage; }}};
constexpr WizardField kConfirmField[] = {
    {kConfirmMessage, [](WizardState& state) -> Text& { return state.workConfirmMessage; }}};
constexpr WizardField kMethodFields[] = {
    {kMethod1, [](WizardState& state) -> Text& { return state.workMethodName[0]; }},
    {kMethod2, [](WizardState& state) -> Text& { return state.workMethodName[1]; }},
    {kMethod3, [](WizardState& state) -> Text& { return state.workMethodName[2]; }},
};
constexpr WizardField kPriceField[] = {{kPrice, [](WizardState& state) -> Text& { return state.workPrice; }}};
constexpr WizardField kRateField[] = {
    {kFreightRate, [](WizardState& state) -> Text& { return state.workFreightTaxRate; }}};

// Radio buttons that follow each other, and the working value that is their number.
struct Choice {
  ControlId first = 0;
  int count = 0;
  int (*get)(const WizardState& state) = nullptr;
  void (*set)(WizardState& state, int number) = nullptr;
};
constexpr Choice kCalculations{
    kByWeight, 4, [](const WizardState& state) { return static_cast<int>(state.workCalcMethod); },
    [](WizardState& state, int number) { state.workCalcMethod = static_cast<FreightCalculation>(number); }};
constexpr Choice kTaxSwitch{kTaxOn, 2, [](const WizardState& state) { return state.workTaxEnabled != 0 ? 0 : 1; },
                            [](WizardState& state, int number) { state.workTaxEnabled = number == 0 ? 1 : 0; }};
constexpr Choice kTaxOptions{kProductTax, 2,
                             [](const WizardState& state) { return static_cast<int>(state.workTaxOption); },
                             [](WizardState& state, int number) { state.workTaxOption = number; }};

// What a page's controls hold of the working values.
struct PageValues {
  std::span<const WizardField> fields{};
  const Choice* choice = nullptr;
  ControlId first = 0;      // that has the focus where Next can not have it
  bool takesFocus = false;  // it has the focus in any case
};

// In the order of the pages.
constexpr PageValues kValues[] = {
    {},
    {.fields = kFolderField, .first = kFolder, .takesFocus = true},
    {.fields = kTitleField, .first = kTitle, .takesFocus = true},
    {},
    {.first = cards::kKnown},
    {.fields = kOrderField},
    {.fields = kConfirmField},
    {},
    {.fields = kMethodFields},
    {.first = regions::kOffered},
    {.choice = &kCalculations},
    {.fields = kPriceField, .first = kPrice},
    {.choice = &kTaxSwitch},
    {.choice = &kTaxOptions},
    {},
    {},
    {.fields = kRateField},
    {},
};
static_assert(std::size(kValues) == kWizardPages);

const PageValues& valuesOf(const WizardState& state) { return kValues[static_cast<std::size_t>(state.page)]; }

void fillChoice(Dialog& dialog, const Choice& choice, const WizardState& state) {
  for (int i = 0; i < choice.count; ++i) dialog.check(choice.first + i, i == choice.get(state));
}

void readChoice(Dialog& dialog, const Choice& choice, WizardState& state) {
  for (int i = 0; i < choice.count; ++i) {
    if (dialog.isChecked(choice.first + i)) choice.set(state, i);
  }
}

ControlId nextButton(const WizardState& state) { return IsLonePage(state) ? kOk : kNext; }

}  // namespace

WizardDialog::WizardDialog(Program& program, WizardState& state) : program_(program), state_(state) {}

const DialogShape& WizardDialog::shape() const { return WizardShape(state_); }

void WizardDialog::opened(Dialog& dialog) { openPage(dialog); }

void WizardDialog::openPage(Dialog& dialog) {
  WizardOpenPage(program_, state_);
  content_ = MakePageContent(program_, state_);
  const PageValues& values = valuesOf(state_);
  FillFields(dialog, values.fields, state_);
  if (values.choice != nullptr) fillChoice(dialog, *values.choice, state_);
  content_->open(dialog);
  if (!IsLonePage(state_)) dialog.enable(kBack, IsBackEnabled(state_));
  checkNext(dialog);
  giveFocus(dialog);
  program_.view.showHelp(shape().id);
}

void WizardDialog::giveFocus(Dialog& dialog) {
  const PageValues& values = valuesOf(state_);
  dialog.focus(nextEnabled_ && !values.takesFocus ? nextButton(state_) : values.first);
}

// The pages whose rule of Next looks at a field have one alone.
void WizardDialog::checkNext(Dialog& dialog) {
  const PageValues& values = valuesOf(state_);
  const std::string field = values.fields.size() == 1 ? dialog.text(values.fields[0].id) : std::string();
  nextEnabled_ = IsNextEnabled(state_, program_.project, field);
  dialog.enable(nextButton(state_), nextEnabled_);
}

void WizardDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (content_ == nullptr || !IsOnPage(state_)) return;
  if (event.notice == Notice::GotFocus) program_.view.showHelp(event.control);
  content_->control(dialog, event);
  if (IsNextRechecked(state_)) checkNext(dialog);
  if (event.notice == Notice::Clicked) pressed(dialog, event.control);
}

void WizardDialog::pressed(Dialog& dialog, ControlId button) {
  switch (button) {
    case kOk:
    case kNext:
      goOn(dialog);
      break;
    case kBack:
      goBack(dialog);
      break;
    case kCancel:
      dialog.end(0);
      break;
    case kHelp:
      program_.view.openHelpPane(shape().id);
      break;
    default:
      break;
  }
}

void WizardDialog::store(Dialog& dialog) {
  const PageValues& values = valuesOf(state_);
  ReadFields(dialog, values.fields, state_);
  if (values.choice != nullptr) readChoice(dialog, *values.choice, state_);
  content_->leave(dialog);
}

void WizardDialog::goOn(Dialog& dialog) {
  if (!nextEnabled_) return;
  store(dialog);
  WizardNext(program_, state_);
  show(dialog);
}

void WizardDialog::goBack(Dialog& dialog) {
  if (!IsBackEnabled(state_)) return;
  store(dialog);
  WizardBack(state_);
  show(dialog);
}

void WizardDialog::show(Dialog& dialog) {
  content_.reset();
  if (IsOnPage(state_)) {
    dialog.reshape();
    openPage(dialog);
  } else {
    dialog.end(1);
  }
}

std::string WizardDialog::cellText(ControlId list, int row, int column) {
  return content_ == nullptr ? std::string() : content_->text(list, row, column);
}

int WizardDialog::rowMark(ControlId list, int row) { return content_ == nullptr ? 0 : content_->mark(list, row); }

void RunWizard(Program& program, WizardState& state, WizardMode mode) {
  WizardStart(program, state, mode);
  WizardDialog logic(program, state);
  program.screen.runDialog(logic);
  if (state.page == WizardPage::Ended) {
    WizardEnd(program, state);
  } else {
    WizardCancel(program, state);
  }
}

void ShowTaxOptions(Program& program, WizardState& state) {
  TaxOptionsDialog logic(program, [&] { RunWizard(program, state, WizardMode::Tax); });
  program.screen.runDialog(logic);
}

}  // namespace varlo
