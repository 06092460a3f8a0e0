#include "persist/dialogs/preferences_dialog.h"

#include "core/program/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/number_text.h"
#include "platform/control_ids.h"

namespace varlo {
namespace {

using namespace control::preferences;

constexpr std::string_view kServersPage = "/varlo/servers.htm";

// The port counts only with a proxy.
void enablePort(Dialog& dialog) { dialog.enable(kPort, !dialog.text(kProxy).empty()); }

}  // namespace

void PreferencesDialog::opened(Dialog& dialog) {
  filling_ = true;
  fill(dialog);
  filling_ = false;
  dialog.focus(control::kOk);
  program_.view.showHelp(dialog::kPreferences);
}

void PreferencesDialog::fill(Dialog& dialog) {
  const AppConfig& config = program_.config;
  for (const Text* known : {&config.browser, &config.browserNetscape, &config.browserExplorer}) {
    if (known->isSet()) dialog.addComboRow(kBrowser, known->view());
  }
  dialog.setText(kBrowser, config.browser.view());
  dialog.setText(kProxy, config.proxy.view());
  dialog.setText(kPort, IntToText(config.proxyPort));
  dialog.setText(kServer, config.orderServer.view());
  dialog.setText(kWebDirectory, program_.project.webDir.view());
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
    case control::kOk:
      apply(dialog);
      dialog.end(1);
      break;
    case control::kCancel:
      dialog.end(0);
      break;
    case control::kHelp:
      program_.view.openHelpPane(dialog::kPreferences);
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
  config.browser = FieldText(dialog, kBrowser);
  config.proxy = FieldText(dialog, kProxy);
  config.orderServer = FieldText(dialog, kServer);
  program_.project.webDir = FieldText(dialog, kWebDirectory);
  config.proxyPort = LeadingInt(dialog.text(kPort));
  config.directoryLink = dialog.isChecked(kDirectoryLink) ? 1 : 0;
  config.newWindow = 0;
}

}  // namespace varlo
