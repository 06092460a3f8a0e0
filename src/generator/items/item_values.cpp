#include "generator/items/item_values.h"

#include "core/program/program.h"
#include "core/text/number_text.h"
#include "core/tree/store_tree.h"
#include "generator/items/html_text.h"
#include "generator/items/links.h"
#include "generator/items/listing.h"
#include "generator/items/scheme_colours.h"

namespace varlo {
namespace {

// The text, or `otherwise` when it has nothing in it.
std::string_view orElse(const Text& text, std::string_view otherwise) {
  return text.isSet() ? text.view() : otherwise;
}

template <typename... Parts>
void append(std::string& text, const Parts&... parts) {
  (text.append(parts), ...);
}

}  // namespace

void AppendBullet(std::string& text, const Value& name) {
  if (!name) return;
  if (name->find('<') != std::string_view::npos) {
    text.append(*name);
  } else {
    text.append("<img src=\"").append(*name).append("\" align=top>");
  }
}

Replaced BulletTag(std::string& text, std::string_view key, const Value& name) {
  std::string bullet;
  AppendBullet(bullet, name);
  if (!key.empty()) return ReplaceAll(text, key, Value(bullet));
  text = std::move(bullet);
  return Replaced::Done;
}

Value ItemValues::slot(std::size_t number) const { return SchemeSlot(generator_.program.project, number); }

// Deliberate: a page title that is there but empty gives an empty description, while the title's own rule
// passes it over.
Value ItemValues::descriptionRule() const {
  if (item_->metaDescription.isSet()) return item_->metaDescription.view();
  return item_->pageTitle.isNull() ? item_->title.view() : item_->pageTitle.view();
}

Value ItemValues::shownTitle() const { return orElse(item_->pageTitle, item_->title.view()); }

const StoreNode* ItemValues::home() const { return generator_.program.project.root; }

Value ItemValues::stripped(Composed which, const Value& value) {
  return composed_[which].get([&value](std::string& text) {
    text = *value;
    StripTags(text);
  });
}

Value ItemValues::metaTitle() { return stripped(kMetaTitle, shownTitle()); }
Value ItemValues::metaDescription() { return stripped(kMetaDescription, descriptionRule()); }

Value ItemValues::homeLink() {
  const StoreNode* root = home();
  if (root == nullptr || root->fileName.isNull()) return {};
  return composed_[kHomeLink].get([root](std::string& text) { text = ForwardSlashes(root->fileName.view()); });
}

Value ItemValues::updated() {
  Clock& clock = generator_.program.clock;
  const std::int64_t now = updatedIsTaken_ ? updatedAt_ : clock.now();
  if (now != updatedAt_) updated_ = DateToText(clock, now, true);
  updatedAt_ = now;
  updatedIsTaken_ = true;
  return updated_;
}

Value ItemValues::bullet(std::size_t slotNumber) {
  return composed_[kBullets + slotNumber - kBulletCategory].get([this, slotNumber](std::string& text) {
    const Value name = slot(slotNumber);
    if (name) AppendBullet(text, BaseName(*name));
  });
}

Value ItemValues::removeLink() {
  return composed_[kRemoveLink].get([this](std::string& text) {
    append(text, "javascript:parent.shopregister.removeItem('", item_->productCode.view(), "')");
  });
}

Value ItemValues::addLink() {
  return composed_[kAddLink].get([this](std::string& text) {
    const StoreNode* parent = LiveParent(*item_);
    // Deliberate: only a shelf stands in for its items; an item on a list names its own file.
    const bool onShelf = parent != nullptr && parent->kind == NodeKind::Shelf;
    std::string tax(orElse(item_->tax, "0"));
    ReplaceFirst(tax, "%", "");
    append(text, "javascript:parent.shopregister.addItem('", (onShelf ? parent : item_)->fileName.view(), "','",
           item_->productCode.view(), "','", item_->title.view(), "','", orElse(item_->cost, "0.00"), "','",
           RewriteImageUrl(generator_.program.config, item_->image.view()), "',1,", orElse(item_->weight, "0"), ",",
           orElse(item_->freight, "0"), ",", tax, ")");
  });
}

Value ItemValues::rewritten(Composed which, const Text& link) {
  if (link.isNull()) return {};
  return composed_[which].get(
      [&](std::string& text) { text = RewriteImageUrl(generator_.program.config, link.view()); });
}

Value ItemValues::image() { return rewritten(kImage, item_->image); }
Value ItemValues::imageLink() { return rewritten(kImageLink, item_->imageLink); }

}  // namespace varlo
