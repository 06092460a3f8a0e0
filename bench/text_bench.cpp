// What colouring a long text costs by itself, on a text without a window: a whole pass, as when a text is loaded, and
// the pass after a key.
#include <cstdio>
#include <string>

#include "bench/stopwatch.h"
#include "shell/text/colour_text.h"
#include "tests/support/fake_rich_text.h"

namespace varlo::bench {
namespace {

constexpr int kRuns = 200;

// HTML as templates have it, of about that size.
std::string madeHtml(std::size_t size) {
  static constexpr const char* kRows[] = {
      "<TABLE WIDTH=\"100%\" BORDER=0 CELLPADDING=4 CELLSPACING=0>\r\n",
      "  <TR><TD ALIGN=\"left\" VALIGN=\"top\"><A HREF=\"$LINK\">$IMAGE</A></TD>\r\n",
      "    <TD><FONT FACE=\"Arial\" SIZE=2><B>$TITLE</B><BR>\r\n",
      "      $BODY Only $CURRENCY $PRICE, or $5 less for three of them.<BR>\r\n",
      "      <!-- what stands here is shown to nobody, $NOTE included -->\r\n",
      "      $BUTTON_ADD <I>$CODE</I></FONT></TD></TR>\r\n",
      "</TABLE>\r\n"};
  std::string text;
  for (std::size_t i = 0; text.size() < size; ++i) text += kRows[i % std::size(kRows)];
  return text;
}

struct Measured {
  double milliseconds = 0;
  int ranges = 0;
  int lines = 0;
};

// A pass with the caret at a position.
Measured measure(test::FakeRichText& edit, int caret, bool wholeText) {
  BestTime best;
  bool colouring = false;
  for (int run = 0; run < kRuns; ++run) {
    edit.select({caret, caret});
    edit.linesAsked = edit.coloured = 0;
    best.add(SecondsOf([&] { colourText(edit, wholeText, colouring); }));
  }
  return {best.seconds() * 1000, edit.coloured, edit.linesAsked};
}

void print(const char* what, std::size_t size, const Measured& measured) {
  std::printf("%-22s %8zu bytes %9.4f ms %7d ranges %6d lines read\n", what, size, measured.milliseconds,
              measured.ranges, measured.lines);
}

}  // namespace
}  // namespace varlo::bench

int main() {
  using namespace varlo::bench;
  for (const std::size_t size : {20000U, 100000U, 1000000U}) {
    const std::string html = madeHtml(size);
    varlo::test::FakeRichText edit(html);
    print("whole pass", html.size(), measure(edit, 0, true));
    print("pass after a key", html.size(), measure(edit, static_cast<int>(html.size() / 2), false));
  }
  return 0;
}
