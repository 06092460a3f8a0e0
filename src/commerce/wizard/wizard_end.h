// The end of a run of the store wizard.
#pragma once

namespace varlo {

struct Program;
struct WizardState;

// The run came to its end: makes the new store, carries out what was chosen, and tells the view. Which of it is done
// depends on the mode. Deliberate: the region values are normalised in every mode, with switches that only a freight
// tax rate has loaded.
void WizardEnd(Program& program, WizardState& state);

// The run was cancelled. The working values stay, and so does what the pages did to the lists of regions and cards.
void WizardCancel(Program& program, WizardState& state);

}  // namespace varlo
