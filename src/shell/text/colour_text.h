// The colours of HTML and of "$" variables in a long text. Nothing about them is stored: a pass learns from the
// colours in front of it where it stands.
#pragma once

#include "platform/rich_text.h"

namespace varlo {

// What a character belongs to, and the colour that shows it.
enum class TextState { PlainText, InTag, InComment, InVariable };

inline constexpr Colour kPlainTextColour = ColourOf(0, 0, 0);
inline constexpr Colour kTagColour = ColourOf(0, 0, 190);
inline constexpr Colour kCommentColour = ColourOf(0, 120, 0);
inline constexpr Colour kVariableColour = ColourOf(250, 0, 0);

[[nodiscard]] Colour colourOf(TextState state);
// Plain text for any other colour.
[[nodiscard]] TextState stateOf(Colour colour);

// Colours a text from the line of its selection on: all of it with `wholeText`, else up to the first line that begins
// in the right colour already. The selection is then a caret at its end. Does nothing while `colouring` is set, as it
// is during a pass.
void colourText(RichText& text, bool wholeText, bool& colouring);

}  // namespace varlo
