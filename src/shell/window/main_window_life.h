// The main window comes up and goes down.
#pragma once

namespace varlo {

struct MainWindow;
struct Shell;

// Sets the window up, opens the project that the configuration names, and decides what comes first.
void setUpMainWindow(Shell& shell, MainWindow& window);

// The window goes: stops a build, writes the configuration, asks to save what is not.
void closeMainWindow(Shell& shell);

// Quit: asks to save, and ends the window.
void quit(Shell& shell);

}  // namespace varlo
