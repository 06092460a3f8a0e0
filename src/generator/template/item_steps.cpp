#include "generator/template/item_steps.h"

#include <array>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/store/node_text.h"
#include "generator/items/frame_script.h"
#include "generator/items/links.h"

namespace varlo {
namespace {

// A text of which an absent one removes the key, or leaves it as it stands.
Value emptied(const Text& text) { return text.view(); }

const StoreProject& projectOf(const ItemValues& values) { return values.generator().program.project; }
const AppConfig& configOf(const ItemValues& values) { return values.generator().program.config; }

template <NodeText kText>
Value itemText(ItemValues& values) {
  return emptied(TextOf(values.item(), kText));
}
template <NodeText kText>
Value itemTextOrKey(ItemValues& values) {
  return ValueOf(TextOf(values.item(), kText));
}
template <std::size_t kNumber>
Value slot(ItemValues& values) {
  return values.slot(kNumber).value_or("");
}
template <std::size_t kNumber>
Value slotOrKey(ItemValues& values) {
  return values.slot(kNumber);
}
template <std::size_t kNumber>
Value buttonOrKey(ItemValues& values) {
  const Value name = values.slot(kNumber);
  return name ? Value(BaseName(*name)) : name;
}
template <std::size_t kNumber>
Value bullet(ItemValues& values) {
  return values.bullet(kNumber);
}

Value user(ItemValues& values) { return AccountUser(configOf(values)); }
Value metaTitle(ItemValues& values) { return values.metaTitle(); }
Value metaDescription(ItemValues& values) { return values.metaDescription(); }
Value storeTitle(ItemValues& values) { return emptied(projectOf(values).storeTitle); }
Value description(ItemValues& values) { return values.descriptionRule(); }
Value homeLink(ItemValues& values) { return values.homeLink(); }
Value homeTitle(ItemValues& values) { return values.home() == nullptr ? Value("") : emptied(values.home()->title); }
Value updated(ItemValues& values) { return values.updated(); }
Value currency(ItemValues& values) { return emptied(projectOf(values).currency); }
Value removeLink(ItemValues& values) { return values.removeLink(); }
Value addLink(ItemValues& values) { return values.addLink(); }
Value price(ItemValues& values) { return values.item().cost.isSet() ? values.item().cost.view() : Value("0"); }
Value server(ItemValues& values) { return emptied(configOf(values).orderServer); }
Value image(ItemValues& values) { return values.image(); }
Value imageLink(ItemValues& values) { return values.imageLink(); }
Value shownTitle(ItemValues& values) { return values.shownTitle(); }
Value version(ItemValues&) { return kProductVersion; }
Value product(ItemValues&) { return kProductName; }
Value frame(ItemValues&) { return kFrameScript; }

using R = Repeat;
constexpr StepRole kPlain = StepRole::Plain;
constexpr bool kSame = true;

constexpr std::array<ItemStep, kItemSteps> kSteps{{
    {"", R::Variables},
    {"$USER", R::Four, user, kPlain, kSame},
    {"$META_TITLE", R::Four, metaTitle},
    {"$META_DESCRIPTION", R::Four, metaDescription},
    {"$META_KEYWORDS", R::Four, itemTextOrKey<NodeText::MetaKeywords>},
    {"$STORETITLE", R::Four, storeTitle, kPlain, kSame},
    {"$PAGETITLE", R::Four, itemText<NodeText::PageTitle>},
    {"$BODY", R::Four, itemText<NodeText::Body>},
    {"$DESCRIPTION", R::Four, description},
    {"$KEYWORDS", R::Four, itemTextOrKey<NodeText::MetaKeywords>},
    {"$HOMELINK", R::Tag, homeLink, kPlain, kSame},
    {"$HOMETITLE", R::Four, homeTitle, kPlain, kSame},
    {"$UPDATED", R::Once, updated},
    {"", R::Check},
    {"$HEADING", R::Four, slot<10>, kPlain, kSame},
    {"$FILENAME", R::Four, itemText<NodeText::FileName>},
    {"$BUTTON_ADD", R::Four, buttonOrKey<28>, kPlain, kSame},
    {"$BUTTON_REMOVE", R::Four, buttonOrKey<30>, kPlain, kSame},
    {"$BUTTON_BACK", R::Four, buttonOrKey<29>, kPlain, kSame},
    {"$BGCOLOR", R::All, slotOrKey<4>, kPlain, kSame},
    {"$BG_COLOR", R::All, slotOrKey<4>, kPlain, kSame},
    {"$TEXT_COLOR", R::All, slotOrKey<5>, kPlain, kSame},
    {"$LINK_COLOR", R::All, slotOrKey<6>, kPlain, kSame},
    {"$VLINK_COLOR", R::All, slotOrKey<7>, kPlain, kSame},
    {"$ALINK_COLOR", R::All, slotOrKey<8>, kPlain, kSame},
    {"$MENUCOLOR", R::All, slotOrKey<9>, kPlain, kSame},
    {"$CURRENCY", R::All, currency, kPlain, kSame},
    {"$BULLET_A", R::All, bullet<27>, kPlain, kSame},
    {"$BULLET_O", R::All, bullet<26>, kPlain, kSame},
    {"$BULLET_F", R::All, bullet<24>, kPlain, kSame},
    {"$BULLET_G", R::All, bullet<25>, kPlain, kSame},
    {"$REMOVE", R::All, removeLink, StepRole::Link},
    {"$BUY", R::All, addLink, StepRole::Link},
    {"$ADD", R::All, addLink, StepRole::Link},
    {"$COST", R::All, itemText<NodeText::Cost>},
    {"$CODE", R::All, itemText<NodeText::ProductCode>},
    {"$FREIGHT", R::All, itemText<NodeText::Freight>},
    {"$WEIGHT", R::All, itemText<NodeText::Weight>},
    {"$TAX", R::All, itemText<NodeText::Tax>},
    {"$PRICE", R::All, price},
    {"$VARLO_SERVER", R::All, server, StepRole::Server},
    {"$IMAGE", R::Tag, image},
    {"$LINK", R::Tag, imageLink},
    {"$F1", R::Tag, itemTextOrKey<NodeText::Field1>},
    {"$F2", R::Tag, itemTextOrKey<NodeText::Field2>},
    {"$F3", R::Tag, itemTextOrKey<NodeText::Field3>},
    {"$F4", R::Tag, itemTextOrKey<NodeText::Field4>},
    {"$F5", R::Tag, itemTextOrKey<NodeText::Field5>},
    {"$F6", R::Tag, itemTextOrKey<NodeText::Field6>},
    {"$FIELD1", R::Tag, itemTextOrKey<NodeText::Field1>},
    {"$FIELD2", R::Tag, itemTextOrKey<NodeText::Field2>},
    {"$FIELD3", R::Tag, itemTextOrKey<NodeText::Field3>},
    {"$FIELD4", R::Tag, itemTextOrKey<NodeText::Field4>},
    {"$FIELD5", R::Tag, itemTextOrKey<NodeText::Field5>},
    {"$FIELD6", R::Tag, itemTextOrKey<NodeText::Field6>},
    {"$LABEL1", R::Tag, itemTextOrKey<NodeText::Label1>},
    {"$LABEL2", R::Tag, itemTextOrKey<NodeText::Label2>},
    {"$LABEL3", R::Tag, itemTextOrKey<NodeText::Label3>},
    {"$LABEL4", R::Tag, itemTextOrKey<NodeText::Label4>},
    {"$LABEL5", R::Tag, itemTextOrKey<NodeText::Label5>},
    {"$LABEL6", R::Tag, itemTextOrKey<NodeText::Label6>},
    {"$TITLE", R::Four, shownTitle},
    {"$VERSION", R::All, version, kPlain, kSame},
    {"$_VERSION", R::All, version, kPlain, kSame},
    {"$_PRODUCT", R::All, product, kPlain, kSame},
    {"$FRAMECOLOR", R::All, slot<19>, kPlain, kSame},
    {"$FRAME", R::All, frame, kPlain, kSame},
}};

constexpr std::size_t numberOf(std::string_view key) {
  std::size_t number = 0;
  while (kSteps[number].key != key) ++number;
  return number;
}

constexpr std::array kEarly{numberOf("$STORETITLE"),  numberOf("$PAGETITLE"), numberOf("$BODY"),
                            numberOf("$DESCRIPTION"), numberOf("$KEYWORDS"),  numberOf("$UPDATED")};

}  // namespace

std::span<const ItemStep, kItemSteps> ItemSteps() { return kSteps; }

std::span<const std::size_t> EarlySteps() { return kEarly; }

}  // namespace varlo
