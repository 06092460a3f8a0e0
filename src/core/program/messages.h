// The texts of message boxes and their titles. They are behaviour to the letter, odd spelling and
// double blanks included.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace varlo {

inline constexpr std::string_view kProductName = "Varlo PRO";
inline constexpr std::string_view kProductVersion = "1.07";
inline constexpr std::string_view kProductRelease = "001";
// The product's own site; every address on it starts with this.
inline constexpr std::string_view kProductSite = "https://www.varlo.example";
// Sites that carry the same updates.
inline constexpr std::string_view kUpdateMirrors[] = {"https://mirror1.varlo.example",
                                                      "https://mirror2.varlo.example"};

namespace message {

// Titles.
inline constexpr std::string_view kConfirmation = "Confirmation";
inline constexpr std::string_view kSavePromptTitle = "Varlo PRO - Save Store Confirmation";
inline constexpr std::string_view kUpgradeTitle = "Project Upgrade";
inline constexpr std::string_view kConfigurationError = "Configuration Error";

// Questions.
inline constexpr std::string_view kSavePrompt = "The current project has changed.  Do you wish to save your changes?";
inline constexpr std::string_view kDeleteCategory =
    "You are about to delete a Category and all nodes below it. Do you wish to proceed?";

inline constexpr std::string_view kChangeTax = "Would you like to change the current tax settings?";

// The dialogs around long tasks.
inline constexpr std::string_view kLoadingProject = "Loading store project. Please wait........";
inline constexpr std::string_view kSavingProject = "Saving store project. Please wait........";

// The project file.
inline constexpr std::string_view kProjectWriteError = "S101: File Write Error";
inline constexpr std::string_view kProjectReadError = "S103: Unable to read project file '%s'";
inline constexpr std::string_view kTemplateWriteError = "ERROR S104: Saving template file";
// What nothing else tells of: a file that lost its end, and where the state before it lies.
inline constexpr std::string_view kFileIncomplete =
    "The file '%s' could not be written completely.  The disk may be full: please make room and save again.";
inline constexpr std::string_view kNewestBackup = "\r\n\r\nThe version saved before lies in '%s'.";
inline constexpr std::string_view kPageWriteError = "ERROR R106: Unable to open HTML output file";

inline constexpr std::string_view kProjectOpenError = "ERROR S105: Unable to open project file";
inline constexpr std::string_view kOtherProjectReadError = "S105: Unable to read project file '%s'";

inline constexpr std::string_view kPageCreateError =
    "ERROR R107: Unable to open HTML output file\r\nNOTE: Usually caused by the Web Directory specified in "
    "Preferences "
    "not existing.";

// Making and copying projects.
inline constexpr std::string_view kInvalidProjectName =
    "Invalid Project Name.  The name must not include forward/back slash characters or commas.";
inline constexpr std::string_view kOrderCopyError = "ERROR M101: Copying 'template\\order.dat' template";
inline constexpr std::string_view kConfirmCopyError = "ERROR M101: Copying 'template\\confirm.dat' template";
inline constexpr std::string_view kFolderError = "Unable to create a new Project Directory '%s'.";
inline constexpr std::string_view kFolderExists =
    "A Project Directory with the same name already exists.  Would you like to overwrite it?";
inline constexpr std::string_view kOpenTitle = "Open Project";
inline constexpr std::string_view kSaveAsTitle = "Save Project As";
inline constexpr std::string_view kImportTitle = "Import from Project";
inline constexpr std::string_view kProjectFilter = "Store Project (*.stp)$*.stp$$";
inline constexpr std::string_view kRestore =
    "You are about to revert to a previously saved version of the store project.  All current changes will be "
    "lost. Do you wish to proceed? ";

// The files of the installation.
inline constexpr std::string_view kRegionsError = "ERROR W106: Unable to Load Domains List 'domain.dat'";
inline constexpr std::string_view kCardsError = "ERROR W107: Unable to open credit card list file 'cc.dat'";
// Deliberate: the name in the message is not that of the file.
inline constexpr std::string_view kConfigError = "ERROR W114: Unable to open file 'drelk.ini'";
inline constexpr std::string_view kCatalogueError = "ERROR W124: Unable to open file 'scheme.ini'";
inline constexpr std::string_view kNoScheme = "No scheme defined for current store.";

// Building the store.
inline constexpr std::string_view kFrameLoaderError = "ERROR S102: Unable to open HTML output file";
inline constexpr std::string_view kIndexFileError = "S108: Unable to write index file '%s'";
inline constexpr std::string_view kInvalidDirectory =
    "Invalid Directory Name.  Must not include forward slash characters or commas.";
inline constexpr std::string_view kPreviewFolderError = "Unable to create directory '%s'";
inline constexpr std::string_view kBrowserError =
    "\"Unable to open the specified Browser. Please check the  Preferences.\"";
inline constexpr std::string_view kBrowserErrorTitle = "Browser Error";
inline constexpr std::string_view kChooseWebDirectory = "Select Web Directory";

inline constexpr std::string_view kServerMissing =
    "No Varlo server selected.  Please select an Varlo server address in Preferences.";

// The images of the inventory form.
inline constexpr std::string_view kOpenImageTitle = "Open Image File";
inline constexpr std::string_view kOpenImageLinkTitle = "Open Image Link File";
inline constexpr std::string_view kImageFilter =
    "Image Files (*.gif, *.jpg)$*.gif;*.jpg;*.jpeg$All Files (*.*)$*.*$$";

// Templates and the search in a text.
inline constexpr std::string_view kOpenTemplateTitle = "Open Template File";
inline constexpr std::string_view kTemplateFilter =
    "Template File (*.htm)$*.htm$Template File (*.html)$*.html$Template File (*.txt)$*.txt$All Files (*.*)$*.*$$";
inline constexpr std::string_view kResetTemplate =
    "This will reset the template to an Varlo default. All changes will be lost.  Do you wish to proceed?";
inline constexpr std::string_view kNotFoundInText = "Cannot find the string: '%s'";

// Projects of older versions.
inline constexpr std::string_view kUpgradeShelfOrderConfirm =
    "Your project was saved with an older version of Varlo PRO.\r\n\r\nFor compatibility, Varlo needs to "
    "replace your Shelf, Order form, and Confirmation page templates.  If you have made changes to these "
    "templates, a copy of the changed versions will be saved as shelf.bak, order.bak and confirm.bak in your "
    "project's template directory.";
inline constexpr std::string_view kUpgradeOrderConfirm =
    "Your project was saved with an older version of Varlo PRO.\r\n\r\nFor compatibility, Varlo needs to "
    "replace your Order form, and Confirmation page templates.  If you have made changes to these templates, a "
    "copy of the changed versions will be saved as order.bak and confirm.bak in your project's template "
    "directory.";

// The main window.
inline constexpr std::string_view kResizeError = "Window resizing failed!";
inline constexpr std::string_view kUpgradeError = "Unable to execute Upgrade Wizard 'upgrade.exe'";
inline constexpr std::string_view kUpgradeErrorTitle = "Upgrade Error";

}  // namespace message

// The message with its first "%s" replaced by `value`.
[[nodiscard]] std::string FillMessage(std::string_view message, std::string_view value);

// The message with each "%s" replaced by the next of the values; one without a value stays.
[[nodiscard]] std::string FillMessage(std::string_view message, std::initializer_list<std::string_view> values);

}  // namespace varlo
