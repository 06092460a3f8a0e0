// The order in which the program comes up and goes down, but for its windows.
#pragma once

namespace varlo {

struct Program;

// Reads the files of the installation, each whether or not the earlier ones were there, and makes what the program
// can't be without: the names of the delivery methods, a style with a scheme, a variable. What comes next is the
// detection of browsers, then the main window.
void StartUp(Program& program);

// What comes first once the main window is up and the project of the configuration open: posts Upgrade without an
// order server, else New Store without a project. Without a config.ini on the disk the first-run counter goes up.
void PostFirstCommand(Program& program);

// What goes on after the upgrade program was started: the demo page on a first run, then New Store without a project.
void ContinueAfterUpgrade(Program& program);

// Quit: asks to save a changed project, then clears `dirty`, whatever came of it.
void ShutDown(Program& program);

// The end of the main window: writes the configuration, asks again if anything changed since, and releases what
// belongs to the process.
void ShutDownWindow(Program& program);

}  // namespace varlo
