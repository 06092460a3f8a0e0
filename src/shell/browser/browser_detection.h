// Finding the browsers of the machine.
#pragma once

namespace varlo {

struct BrowserSystem;
struct Program;

// Finds the browsers of the machine, and chooses one where the preferences have none.
void detectBrowsers(Program& program, BrowserSystem& browsers);

}  // namespace varlo
