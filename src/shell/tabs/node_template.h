// The template in hand: the page template of the node that the Template tab shows, a file of the project. Its text
// stands in a slot of the program, where a file that can't be read leaves the text of the one before.
#pragma once

#include <string_view>

namespace varlo {

struct Shell;
struct StoreNode;

// Reads the template of a node and holds its name, or none when it can't be read. Its path goes to the templates used
// lately.
void loadTemplate(Shell& shell, const StoreNode& node);

// The text in hand, up to the next read.
[[nodiscard]] std::string_view templateText(const Shell& shell);

// Writes what the user made of the template of a node; tells when that fails. The name is not held any more.
// Nothing is written where the file can't be read and the text is still the one that was shown instead.
void storeTemplate(Shell& shell, const StoreNode& node, std::string_view text);

// The three buttons of the tab: writes a file that the user chooses over the node's template; after a question, the
// one that the scheme in use has for its kind; shows the template in the browser, while its name is held. None of
// them marks the project. The form is loaded anew.
void chooseTemplate(Shell& shell);
void resetTemplate(Shell& shell);
void viewTemplate(Shell& shell);

}  // namespace varlo
