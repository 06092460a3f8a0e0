// ItemValues: what the variables stand for, for one item. Composed values stay valid until the next item
// is taken.
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

class ItemValues {
 public:
  explicit ItemValues(Generator& generator) : generator_(generator) {}

  // Takes the item whose values are asked for from now on.
  void take(const StoreNode& item) {
    item_ = &item;
    updatedIsTaken_ = false;
    addLink_.clear();
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
  [[nodiscard]] Value stripped(const Value& value, std::string& buffer);
  [[nodiscard]] Value rewritten(const Text& link, std::string& buffer);

  Generator& generator_;
  const StoreNode* item_ = nullptr;
  std::string metaTitle_;
  std::string metaDescription_;
  std::string homeLink_;
  std::array<std::string, 4> bullets_;
  std::string removeLink_;
  std::string addLink_;
  std::string image_;
  std::string imageLink_;
  std::string updated_;
  std::int64_t updatedAt_ = -1;
  bool updatedIsTaken_ = false;  // one moment for all that is filled in for an item
};

}  // namespace varlo
