#include "bench/made_templates.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace varlo::bench {
namespace {

constexpr const char* kHead = R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<meta name="description" content="$META_DESCRIPTION">
<meta name="keywords" content="$META_KEYWORDS">
<meta name="generator" content="$_PRODUCT $_VERSION">
<title>$META_TITLE - $STORETITLE</title>
$FRAME
<style>
body { background: $BGCOLOR; color: $TEXT_COLOR; font-family: Verdana, Arial, sans-serif; margin: 0; padding: 0; }
a:link { color: $LINK_COLOR; } a:visited { color: $VLINK_COLOR; } a:active { color: $ALINK_COLOR; }
.menu { background: $MENUCOLOR; border-right: 1px solid $FRAMECOLOR; padding: 0.5em 1em; vertical-align: top; }
.page { padding: 1em 2em; vertical-align: top; max-width: 60em; }
.price { font-size: 150%; font-weight: bold; color: $LINK_COLOR; }
.buttons { margin: 1.5em 0; padding: 0.5em; background: $BG_COLOR; border: 1px solid $FRAMECOLOR; }
</style>
</head>
<body bgcolor="$BGCOLOR" text="$TEXT_COLOR" link="$LINK_COLOR" vlink="$VLINK_COLOR" alink="$ALINK_COLOR">
<a name="top"></a>
<table width="100%" cellspacing="0" cellpadding="0"><tr><td>$HEADING</td>
<td align="right"><a href="$HOMELINK">$HOMETITLE</a> | <a href="indexa.htm">A to Z</a> | <a href="$BACK">Back</a></td></tr></table>
<!-- The menu is a list of the neighbouring pages, with what lies below the open one. -->
<table width="100%"><tr><td class="menu" width="25%">
$INDEX
<p>$BULLET_A Parent page<br>$BULLET_O This page<br>$BULLET_F Categories<br>$BULLET_G Articles</p>
</td><td class="page">
)html";

constexpr const char* kBody = R"html(<h1>$TITLE</h1>
<h2>$PAGETITLE</h2>
<a href="$LINK"><img src="$IMAGE" alt="$TITLE" border="0"></a>
<div>$BODY</div>
<table>
<tr><td><b>$LABEL1</b></td><td>$FIELD1</td></tr>
<tr><td><b>$LABEL2</b></td><td>$FIELD2</td></tr>
<tr><td><b>$LABEL3</b></td><td>$FIELD3</td></tr>
<tr><td><b>$LABEL4</b></td><td>$FIELD4</td></tr>
<tr><td><b>$LABEL5</b></td><td>$FIELD5</td></tr>
<tr><td><b>$LABEL6</b></td><td>$FIELD6</td></tr>
</table>
<p>$F1 $F2 $F3 $F4 $F5 $F6</p>
<p class="price">$CURRENCY$PRICE</p>
<p>Order number: $CODE. Weight: $WEIGHT kg. Additional freight: $CURRENCY$FREIGHT. Tax: $TAX</p>
<p>Our price of $CURRENCY$COST holds while stocks last; see the conditions below.</p>
<div class="buttons">
<a href="$ADD"><img src="$BUTTON_ADD" alt="Add to the trolley" border="0"></a>
<a href="$REMOVE"><img src="$BUTTON_REMOVE" alt="Take out of the trolley" border="0"></a>
<a href="$BACK"><img src="$BUTTON_BACK" alt="Back" border="0"></a>
<a href="$BUY">Buy this now</a>
</div>
<!--+ <p>What the page is about: $KEYWORDS</p> +-->
)html";

constexpr const char* kTerms = R"html(<h3>Conditions of sale</h3>
<p>All prices are in $CURRENCY. We send your order within five working days of its coming in; if an article is out of
stock we tell you on the same day and you may cancel the order, wait, or choose another one. You may return what you
have bought within thirty days, unused and in its own packing, and we refund what you have paid for it. We pay for the
return of what was damaged on its way. Articles that were made to your measure cannot be taken back.</p>
<p>Orders are handed to the order server at $VARLO_SERVER under the account $USER. Your particulars are used to fulfil
the order and for nothing else; they are not given to others. Write to us if you would like to know what we hold.</p>
)html";

constexpr const char* kCare = R"html(<h3>How to look after it</h3>
<p>Wood likes neither a wet floor nor a hot stove: put felt below the feet, and turn the piece once a year so that the
light reaches every side of it. Oil it with linseed when the grain looks dry, thinly, and rub it off after an hour.</p>
<p>Iron wants to be dry. Dry it by hand after washing, never in the machine, and rub a drop of oil over it before you
put it away; a spot of rust goes with steel wool and does no harm. Enamel takes all but blows and sudden cold.</p>
<p>Earthenware that stands outdoors comes in before the first frost, or stands on feet so that it drains. A hair-line
in the glaze is no fault: it comes with the years, and many of our customers buy a piece for the sake of it.</p>
<p>Linen shrinks by three parts in a hundred at the first washing, which we have allowed for in its measure. Wash it at
sixty degrees with its like, iron it damp, and it will outlast the table that it lies on.</p>
<p>Baskets, brushes and brooms of bristle and cane are given a bath twice a year: lukewarm water, a little soap, and a
day in the shade to dry, hung up and not stood on their ends. Spare parts for everything that has a screw are in stock
for at least ten years from the day on which we sell the last of a kind; ask for them by the order number above.</p>
<p>If it breaks all the same, write to us before you throw it away. The workshop mends what it has made for the price
of the carriage, and tells you beforehand when a thing is past mending. Bring it to the shop and you shall have a cup
of tea while you wait for the verdict; send it by post and we tell you within a week what we have found.</p>
)html";

constexpr const char* kNotes = R"html(<p>$NOTE00</p><p>$NOTE01</p><p>$NOTE02</p><p>$NOTE03</p>
)html";

constexpr const char* kFoot = R"html(<hr>
<p><a href="$HOMELINK">$STORETITLE</a> | $FILENAME | last changed $UPDATED | version $VERSION | <a href="#top">top</a>
| $URL</p>
</td></tr></table>
<script>
(function () {
  var links = document.getElementsByTagName("a");
  for (var i = 0; i < links.length; i++) {
    if (links[i].target === "_blank") links[i].rel = "noopener";
  }
})();
</script>
</body>
</html>
)html";

constexpr const char* kShelfBlock =
    R"html(<SHELF><tr><td><a href="$LINK"><img src="$IMAGE" alt="$TITLE" border="0"></a></td>
<td><b>$TITLE</b><br>$BODY<br>$LABEL1 $FIELD1<br>$LABEL2 $FIELD2<br>Order number: $CODE. Weight: $WEIGHT kg.</td>
<td class="price">$CURRENCY$PRICE</td>
<td><a href="$ADD"><img src="$BUTTON_ADD" alt="Add to the trolley" border="0"></a>
<a href="$REMOVE"><img src="$BUTTON_REMOVE" alt="Take out of the trolley" border="0"></a></td></tr>
</SHELF>
)html";

void write(const std::filesystem::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("A template could not be written.");
}

}  // namespace

std::string MadePageTemplate() {
  return std::string(kHead).append(kBody).append(kTerms).append(kCare).append(kNotes).append(kFoot);
}

std::string MadeShelfTemplate() {
  return std::string(kHead)
      .append("<h1>$TITLE</h1>\n<table>\n")
      .append(kShelfBlock)
      .append("</table>\n")
      .append(kFoot);
}

void WriteMadeTemplates(const std::string& folder) {
  const std::filesystem::path templates = std::filesystem::path(folder) / "template";
  std::filesystem::create_directories(templates);
  write(templates / "product.htm", MadePageTemplate());
  write(templates / "category.htm", MadePageTemplate());
  write(templates / "shelf.htm", MadeShelfTemplate());
  write(templates / "list.htm", MadeShelfTemplate());
}

}  // namespace varlo::bench
