// The order form and the confirmation page: as texts that register.html embeds, and as plain pages for the
// owner to look at.
#pragma once

#include <string>

#include "core/text/working_text.h"

namespace varlo {

struct Generator;
struct StoreProject;

// The list of the accepted cards, which is composed in the scratch text. Without cards it is written all
// the same, and a warning counts.
[[nodiscard]] std::string CardSelect(Generator& generator);

// Fill a text with the embedded form: the owner's template, cut at the capacity of the text, with his
// message in it, every double quote as "%22", and the colours. Deliberate: colours come behind the quotes,
// so that a quote in a colour stays.
void BuildOrderText(Generator& generator, WorkingText& working);
void BuildConfirmText(Generator& generator, WorkingText& working);

// Write the plain form as "preview.htm"; the two overwrite one another. 1 written, 0 with a message when no
// scheme is set or the file can't be created.
int PreviewOrderForm(Generator& generator);
int PreviewConfirmation(Generator& generator);

// What is shown after a preview of a form. Deliberate: below the project, wherever the file was written.
[[nodiscard]] std::string FormPreviewPath(const StoreProject& project);

}  // namespace varlo
