// The lines that a build logs. They are behaviour to the letter, like those of core/messages.h.
#pragma once

#include <string_view>

#include "core/program/messages.h"

namespace varlo::message {

// Pages.
inline constexpr std::string_view kNoShelfBlock = "error: %s: Invalid or Missing <SHELF>..</SHELF> block.";
inline constexpr std::string_view kDuplicateFileName = "error: %s: duplicate file name in project";
inline constexpr std::string_view kNoProductCode = "error: %s: no product code";
inline constexpr std::string_view kNoServer = "error: Varlo Server must be defined in preferences!";
inline constexpr std::string_view kIllegalVariableName = "error: %s: illegal variable name";
inline constexpr std::string_view kEndlessReplacement = "error: %s: endless replacement of '%s'";
inline constexpr std::string_view kTemplateTooLong = "error: %s: template too long: '%s'";
inline constexpr std::string_view kEndlessComment = "error: %s: comment without an end";

// Pictures. Deliberate: two of them name neither page nor file.
inline constexpr std::string_view kImageReadWarning = "warning: %s: unable to read image file: '%s'";
inline constexpr std::string_view kImagePathError = "unable to copy image file (Path not found)";
inline constexpr std::string_view kImageAccessError = "unable to copy image file (Access Denied)";
inline constexpr std::string_view kImageCopyError = "error: %s: unable to copy image file: '%s' to '%s'";
inline constexpr std::string_view kImageLinkReadWarning = "warning: %s: unable to read image link file: '%s'";
inline constexpr std::string_view kImageLinkCopyError = "error: %s: unable to copy image link file: '%s' to '%s'";

// Cart frames and forms.
inline constexpr std::string_view kNoRegisterServer =
    "error: register.html: Varlo Server not defined in preferences!";
inline constexpr std::string_view kFrameLoaderLine = "error: %s: unable to create frame loader page '%s'";
inline constexpr std::string_view kNoCards = "warning: accepted credit cards list not defined";

// The build itself.
inline constexpr std::string_view kReady = "%s v%s.%s - Ready";
inline constexpr std::string_view kNoDirectory = "critical error: unable to create directory '%s'";
inline constexpr std::string_view kNoBuildScheme = "critical error: no scheme defined for current store";
inline constexpr std::string_view kBuildStopped = "Build Stopped";
inline constexpr std::string_view kSchemeCopyError = "error: scheme: copying schema file '%s'";
inline constexpr std::string_view kBuildComplete = "Store Build Complete. (%s errors, %s warnings)";

}  // namespace varlo::message
