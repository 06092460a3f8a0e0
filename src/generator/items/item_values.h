// ItemValues: what the variables stand for, for one item. Places of a text hold views of the values, so each is
// composed once, and stays where it is until the next item is taken.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "generator/items/replace.h"
#include "generator/state/generator.h"

namespace varlo {

struct StoreNode;

// HTML for a bullet: nothing for an absent name, the name itself when it is HTML already, else a picture
// of that name.
void AppendBullet(std::string& text, const Value& name);

// The same with the bullet in the place of every `key` of the text; without a key the text becomes the
// bullet. The bullets of a scheme hold no keys, so Endless comes from the owner's own HTML only.
Replaced BulletTag(std::string& text, std::string_view key, const Value& name);

// A text that is composed when it is first asked for.
class ComposedText {
 public:
  void forget() { composed_ = false; }

  // The text, which `compose` appends to an empty one the first time.
  template <typename Compose>
  [[nodiscard]] std::string_view get(Compose compose) {
    if (!composed_) {
      text_.clear();
      compose(text_);
      composed_ = true;
    }
    return text_;
  }

 private:
  std::string text_;
  bool composed_ = false;
};

class ItemValues {
 public:
  explicit ItemValues(Generator& generator) : generator_(generator) {}

  // Takes the item whose values are asked for from now on.
  void take(const StoreNode& item) {
    item_ = &item;
    updatedIsTaken_ = false;
    for (ComposedText& text : composed_) text.forget();
  }

  [[nodiscard]] Generator& generator() const { return generator_; }
  [[nodiscard]] const StoreNode& item() const { return *item_; }

  // A slot of the project's scheme; absent without a scheme as well.
  [[nodiscard]] Value slot(std::size_t number) const;

  // Plain values.
  [[nodiscard]] Value descriptionRule() const;
  [[nodiscard]] Value shownTitle() const;  // the page's title, else the item's
  [[nodiscard]] const StoreNode* home() const;

  // Composed values.
  [[nodiscard]] Value metaTitle();
  [[nodiscard]] Value metaDescription();
  [[nodiscard]] Value homeLink();
  [[nodiscard]] Value updated();
  [[nodiscard]] Value bullet(std::size_t slot);
  [[nodiscard]] Value removeLink();
  [[nodiscard]] Value addLink();
  [[nodiscard]] Value image();      // as the page addresses it
  [[nodiscard]] Value imageLink();  // the same

 private:
  // The composed values; the four bullets stand at the end.
  enum Composed : std::size_t {
    kMetaTitle,
    kMetaDescription,
    kHomeLink,
    kRemoveLink,
    kAddLink,
    kImage,
    kImageLink,
    kBullets,
    kComposed = kBullets + 4,
  };

  [[nodiscard]] Value stripped(Composed which, const Value& value);
  [[nodiscard]] Value rewritten(Composed which, const Text& link);

  Generator& generator_;
  const StoreNode* item_ = nullptr;
  std::array<ComposedText, kComposed> composed_;
  std::string updated_;
  std::int64_t updatedAt_ = -1;
  bool updatedIsTaken_ = false;  // one moment for all that is filled in for an item
};

}  // namespace varlo
