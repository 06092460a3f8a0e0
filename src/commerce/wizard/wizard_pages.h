// The page graph of the store wizard: which page follows which, and when Next and Back can be pressed.
#pragma once

#include <string>
#include <string_view>

#include "commerce/wizard/wizard_state.h"

namespace varlo {

struct Program;
struct StoreProject;

// When Next (or Finish, or the "&OK" of a lone dialog) can be pressed.
enum class NextRule {
  Always,
  FieldFilled,      // while the page's field has text
  CardsAccepted,    // while the store accepts a card
  RegionsSelected,  // while the store delivers to a region
};

struct WizardPageRow {
  std::string_view heading;  // of its help
  NextRule nextRule = NextRule::Always;
  bool (*backEnabled)(WizardMode mode) = nullptr;
  WizardPage (*next)(const WizardState& state) = nullptr;
  WizardPage (*back)(const WizardState& state) = nullptr;
};

// The row of a page, which must be one of kWizardPages.
[[nodiscard]] const WizardPageRow& RowOf(WizardPage page);

// Whether the run is on a page; if not, it has ended or was cancelled.
[[nodiscard]] inline bool IsOnPage(const WizardState& state) { return state.page < WizardPage::Ended; }

[[nodiscard]] bool IsBackEnabled(const WizardState& state);

// `field` is what stands in the page's field now.
[[nodiscard]] bool IsNextEnabled(const WizardState& state, const StoreProject& project, std::string_view field);

// Whether the rule of Next is looked at again after each move and key. Deliberate: a lone dialog looks once, when it
// opens, so its "&OK" stays grey after adding to an empty list, and live after removing all.
[[nodiscard]] bool IsNextRechecked(const WizardState& state);

// What a page does as it opens: the lists of the tax pages first lose the values that do not fit.
void WizardOpenPage(Program& program, const WizardState& state);

// Go on, or back, from the current page, whose controls have been stored. Nothing where the button is disabled for
// the mode or the run is over. Leaving the Layout page forwards makes the current scheme the project's at once.
void WizardNext(Program& program, WizardState& state);
void WizardBack(WizardState& state);

// A folder name without the characters that it must not hold.
[[nodiscard]] std::string FilteredFolderName(std::string_view typed);

}  // namespace varlo
