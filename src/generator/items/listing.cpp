#include "generator/items/listing.h"

#include "core/store/store_node.h"
#include "generator/items/item_values.h"
#include "generator/items/links.h"

namespace varlo {
namespace {

constexpr std::string_view kAnchor = "\">";
constexpr std::string_view kOutsideAnchor = "\" target=_blank>";

bool isFile(std::string_view image) { return !image.empty() && image.find('>') == std::string_view::npos; }

bool holdsKey(std::string_view text) { return text.find('$') != std::string_view::npos; }

// The row as a small template and five replacements, for values that hold keys of the row themselves.
std::string literalRow(const RowParts& parts, std::string_view image, std::string_view anchor) {
  std::string row = "<tr><td valign=top width=5%>";
  row.append(isFile(image) ? "<img src=\"$IMAGE\">" : "$IMAGE");
  row.append("</td><td><font size=-1><a href=\"$LINK").append(anchor).append("$+B$NAME$-B</a>");
  ReplaceFirst(row, "$IMAGE", image);
  ReplaceFirst(row, "$LINK", parts.link.value_or(""));
  ReplaceFirst(row, "$NAME", parts.name.value_or(""));
  ReplaceFirst(row, "$+B", parts.bold ? "<b>" : "");
  ReplaceFirst(row, "$-B", parts.bold ? "</b>" : "");
  return row;
}

void addRow(std::string& text, const RowParts& parts, std::string_view anchor) {
  const std::string_view image = parts.image.value_or("");
  const std::string_view link = parts.link.value_or("");
  const std::string_view name = parts.name.value_or("");
  if (holdsKey(image) || holdsKey(link) || holdsKey(name)) {
    text += literalRow(parts, image, anchor);
  } else {
    text += "<tr><td valign=top width=5%>";
    if (isFile(image)) {
      text.append("<img src=\"").append(image).append("\">");
    } else {
      text += image;
    }
    text.append("</td><td><font size=-1><a href=\"").append(link).append(anchor);
    text.append(parts.bold ? "<b>" : "").append(name).append(parts.bold ? "</b></a>" : "</a>");
  }
  if (parts.subindex) text.append("<br>").append(kSubindexKey);
  text += "</td></tr>\n";
}

// The node's file name as an address. Most hold no back slash, and need no copy.
class Address {
 public:
  explicit Address(const Text& fileName) : view_(fileName.view()) {
    if (view_.find('\\') == std::string_view::npos) return;
    turned_ = ForwardSlashes(view_);
    view_ = turned_;
  }
  [[nodiscard]] std::string_view view() const { return view_; }

 private:
  std::string_view view_;
  std::string turned_;
};

// Whether a table is longer than a page can be, so that nothing more need be added to it.
bool isTooLong(const std::string& table) { return table.size() > kLongestText; }

std::size_t bulletOf(const StoreNode& node) {
  return node.kind == NodeKind::Category ? kBulletCategory : kBulletOther;
}

}  // namespace

void ListingRow(std::string& text, const RowParts& parts) { addRow(text, parts, kAnchor); }
void OutsideRow(std::string& text, const RowParts& parts) { addRow(text, parts, kOutsideAnchor); }

Value BulletName(const ItemValues& values, std::size_t slot) {
  const Value name = values.slot(slot);
  return name ? Value(BaseName(*name)) : name;
}

bool IsIndexed(const StoreNode& node) { return node.status != kStatusDisabled; }
bool IsInProductTables(const StoreNode& node) { return node.status >= -1; }

void NodeRow(std::string& text, const ItemValues& values, const StoreNode& node, bool subindex) {
  const Address address(node.fileName);
  ListingRow(text, {.image = BulletName(values, bulletOf(node)),
                    .link = address.view(),
                    .name = node.title.view(),
                    .subindex = subindex});
}

void OwnRow(std::string& text, const ItemValues& values, const StoreNode& node, bool subindex) {
  const Address address(node.fileName);
  ListingRow(text, {.image = BulletName(values, kBulletOpen),
                    .link = address.view(),
                    .name = node.title.view(),
                    .subindex = subindex,
                    .bold = true});
}

// Deliberate: disabled children count for the middle as well, so the columns can come out uneven.
std::string ProductTableTwo(const ItemValues& values, const StoreNode& node) {
  constexpr std::string_view kColumn = "</td><td valign=top><font size=-1>";
  std::size_t total = 0;
  for (const StoreNode* child = node.child; child != nullptr; child = child->next) ++total;
  const std::size_t middle = (total + 1) / 2;
  std::string table = "<table width=100% border=0 cellspacing=1><tr><td valign=top><font size=-1>";
  std::size_t shown = 0;
  for (const StoreNode* child = node.child; child != nullptr && !isTooLong(table); child = child->next) {
    if (!IsInProductTables(*child)) continue;
    if (shown == middle) table += kColumn;
    AppendBullet(table, BulletName(values, bulletOf(*child)));
    table.append(" <a href=\"").append(Address(child->fileName).view()).append("\">");
    table.append(child->title.view()).append("</a><br>\n");
    ++shown;
  }
  return table += "</td></tr></table>\n";
}

std::string ProductTableOne(const ItemValues& values, const StoreNode& node) {
  std::string table = "<table>";
  for (const StoreNode* child = node.child; child != nullptr && !isTooLong(table); child = child->next) {
    if (IsInProductTables(*child)) NodeRow(table, values, *child, false);
  }
  return table += "</table>\n";
}

}  // namespace varlo
