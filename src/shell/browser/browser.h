// Showing pages in the user's web browser: in one that runs already, by a conversation with it, else in a new one.
#pragma once

#include <string_view>

namespace varlo {

struct Shell;

// Shows `url`: an address, or a file below the working folder. True when it went to a browser.
bool launchBrowser(Shell& shell, std::string_view browser, std::string_view url, int newWindow);

// The same with the stored preferences; tells the user when it failed.
bool openInBrowser(Shell& shell, std::string_view url);

}  // namespace varlo
