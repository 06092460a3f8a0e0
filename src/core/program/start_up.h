// The order in which the program comes up and goes down. The readers, the window and the browser
// detection are handed in, so the order stands in one place.
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "core/store/freight_record.h"

namespace varlo {

struct Program;
struct SchemeRecord;
struct StoreProject;

// The delivery methods of a store that names none.
inline constexpr std::array<std::string_view, kFreightMethods> kDefaultMethodNames{
    "Economy Air (2-3 Weeks)", "Express Courier (1-3 Days)", "Surface Mail (3-6 Weeks)"};

// Gives a project without variables the one that every store starts with.
void MakeDefaultVariable(StoreProject& project);

// What start-up runs, each whether or not the earlier ones found their files. An empty function is
// skipped.
struct StartUpSteps {
  std::function<void(Program&)> readRegionCatalogue{};   // domain.dat
  std::function<void(Program&)> readSchemeCatalogue{};   // scheme.dat, then scheme.ini
  std::function<void(Program&)> readConfig{};            // config.ini, then server.ini
  std::function<void(Program&)> readCardCatalogue{};     // cc.dat
  std::function<void(Program&)> readTemplateVersions{};  // version.ini
  std::function<void(SchemeRecord&)> setSchemeDefaults{};
  std::function<void(Program&)> detectBrowsers{};
};

// Brings the state up to the point where the main window opens.
void StartUp(Program& program, const StartUpSteps& steps);

// What the main window does while it comes up. An empty function is skipped.
struct WindowSteps {
  std::function<int(Program&)> loadProject{};  // the one that the configuration names
  std::function<void(Program&)> openPage{};    // while the wait cursor is still shown
  std::function<void(Program&)> show{};        // the rest of the window
};

// Loads the project that the configuration names, shows it, and decides what comes next: Upgrade without an
// order server, else New Store without a project. Without a config.ini on disk the first-run counter goes up.
void StartUpInWindow(Program& program, const WindowSteps& steps);

// What goes on after the upgrade program was started: the demo page on a first run, through
// `openInBrowser`, then New Store without a project.
void ContinueAfterUpgrade(Program& program, const std::function<void(Program&, const char*)>& openInBrowser);

// What shut-down runs.
struct ShutDownSteps {
  std::function<bool(Program&)> saveWithBackup{};  // rolling backup, then save
  std::function<void(Program&)> stopBuild{};
  std::function<void(Program&)> saveConfig{};  // config.ini and scheme.ini
};

// What became of the question whether to save: Unasked also stands for any answer but Yes.
enum class PromptResult { Unasked, Failed, Saved };

// Asks to save a changed project, and saves it on Yes.
PromptResult AskToSave(Program& program, const std::function<bool(Program&)>& saveWithBackup);

// Quit: asks, then clears `dirty`.
void ShutDown(Program& program, const ShutDownSteps& steps);

// The end of the main window: stops a build, writes the configuration, asks again if anything changed
// since, and releases what belongs to the process.
void ShutDownWindow(Program& program, const ShutDownSteps& steps);

}  // namespace varlo
