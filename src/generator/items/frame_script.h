// The text of $FRAME: a script that rebuilds the frameset around a page that is opened alone.
#pragma once

#include <string_view>

namespace varlo {

inline constexpr std::string_view kFrameScript =
    R"html(<SCRIPT>if (name != "shopmain")document.writeln('<FRAMESET COLS="*,208" BORDER=0 FRAMEBORDER=NO ' +)html"
    R"html('FRAMESPACING=0>' +'<FRAME SRC="' + location + '?x" NAME="shopmain" MARGINWIDTH=2>' +)html"
    R"html('<FRAMESET ROWS="*,110">' +'<FRAME SRC="trolley.html" NAME="shoptrolley" MARGINWIDTH=13' +)html"
    R"html(' MARGINHEIGHT=5>' +'<FRAME SRC="register.html' + location.search +'" NAME="shopregister">' +)html"
    R"html('</FRAMESET>' +'</FRAMESET>' +'<NOFRAMES>');</SCRIPT>)html";

}  // namespace varlo
