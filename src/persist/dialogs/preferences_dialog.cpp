#include "persist/dialogs/preferences_dialog.h"

#include "core/forms/fields.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/number_text.h"

namespace varlo {
namespace {

using namespace preferences;

constexpr Row kServerRows[] = {
    {{{.id = kServer, .kind = Kind::Edit, .buttons = {{kBrowseServers, "Bro&wse >>", 82}}}}},
};
constexpr Row kDirectoryRows[] = {
    {{{.id = kWebDirectory, .kind = Kind::Edit}}},
};
constexpr Row kRows[] = {
    {{{.id = kBrowser, .kind = Kind::Combo, .label = "&Browser:", .labelWidth = 64}}},
    {{{.id = kProxy, .kind = Kind::Edit, .label = "P&roxy:", .labelWidth = 64},
      {.id = kPort, .kind = Kind::Edit, .label = "&Port:", .labelWidth = 42, .width = 116}}},
    {{{.kind = Kind::Group, .label = "Varlo &Server", .rows = kServerRows}}, 4},
    {{{.kind = Kind::Group, .label = "Web &Directory:", .rows = kDirectoryRows}}, 4},
    {{{.kind = Kind::Text, .label = "Shall your store link to a directory of Varlo stores?"}}, 4},
    {{{.id = kDirectoryLink, .kind = Kind::Check, .label = "&YES"}}},
};
constexpr FootButton kFoot[] = {{kOk, "OK", Option::Default}, {kCancel, "Cancel"}, {kHelp, "&Help"}};

// The texts; the port is a number and the link a tick.
constexpr Field<Program> kFields[] = {
    {kBrowser, [](Program& program) -> Text& { return program.config.browser; }},
    {kProxy, [](Program& program) -> Text& { return program.config.proxy; }},
    {kServer, [](Program& program) -> Text& { return program.config.orderServer; }},
    {kWebDirectory, [](Program& program) -> Text& { return program.project.webDir; }},
};

constexpr std::string_view kServersPage = "/varlo/servers.htm";

// The port counts only with a proxy.
void enablePort(Dialog& dialog) { dialog.enable(kPort, !dialog.text(kProxy).empty()); }

}  // namespace

constinit const DialogShape PreferencesDialog::kShape{
    .id = kWindow, .title = "Varlo Preferences", .size = {420, 0}, .rows = kRows, .foot = kFoot};

void PreferencesDialog::opened(Dialog& dialog) {
  filling_ = true;
  fill(dialog);
  filling_ = false;
  dialog.focus(kOk);
  program_.view.showHelp(preferences::kWindow);
}

void PreferencesDialog::fill(Dialog& dialog) {
  const AppConfig& config = program_.config;
  for (const Text* known : {&config.browser, &config.browserNetscape, &config.browserExplorer}) {
    if (known->isSet()) dialog.addRow(kBrowser, known->view());
  }
  FillFields<Program>(dialog, kFields, program_);
  dialog.setText(kPort, IntToText(config.proxyPort));
  dialog.check(kDirectoryLink, config.directoryLink != 0);
  enablePort(dialog);
}

void PreferencesDialog::notified(Dialog& dialog, const ControlEvent& event) {
  switch (event.notice) {
    case Notice::Changed:
      edited(dialog, event.control);
      break;
    case Notice::GotFocus:
      program_.view.showHelp(event.control);
      break;
    case Notice::Clicked:
      pressed(dialog, event.control);
      break;
    default:
      break;
  }
}

// Deliberate: an edit marks the project as changed, even if the dialog ends in Cancel.
void PreferencesDialog::edited(Dialog& dialog, ControlId control) {
  if (control == kProxy) enablePort(dialog);
  if (filling_) return;
  program_.view.storeForm();
  SetDirty(program_, 1);
}

void PreferencesDialog::pressed(Dialog& dialog, ControlId button) {
  switch (button) {
    case kOk:
      apply(dialog);
      dialog.end(1);
      break;
    case kCancel:
      dialog.end(0);
      break;
    case kHelp:
      program_.view.openHelpPane(preferences::kWindow);
      break;
    case kBrowseServers:
      program_.view.openInBrowser(std::string(kProductSite).append(kServersPage));
      break;
    default:
      break;
  }
}

// Nothing is written to disk until the next save or exit.
void PreferencesDialog::apply(Dialog& dialog) {
  AppConfig& config = program_.config;
  ReadFields<Program>(dialog, kFields, program_);
  config.proxyPort = LeadingInt(dialog.text(kPort));
  config.directoryLink = dialog.isChecked(kDirectoryLink) ? 1 : 0;
  config.newWindow = 0;
}

}  // namespace varlo
