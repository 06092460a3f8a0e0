#include "generator/cart/order_pages.h"

#include "core/program/program.h"
#include "core/store/card_entry.h"
#include "generator/items/links.h"
#include "generator/items/reported_replace.h"
#include "generator/items/scheme_colours.h"
#include "generator/state/build_messages.h"
#include "generator/state/generator.h"
#include "generator/state/output_file.h"

namespace varlo {
namespace {

constexpr std::string_view kPreviewName = "preview.htm";
constexpr std::string_view kRegisterName = "register.html";
constexpr std::string_view kMessageKey = "$MESSAGE";
constexpr std::string_view kConfirmKey = "$CONFIRM";
constexpr std::string_view kCardsKey = "$ACCEPTED_CARDS";

// A template is cut here in a preview.
constexpr std::size_t kPreviewCapacity = 100000;

// What is made room for beyond the list of cards.
constexpr std::size_t kCardsReserve = 2000;

using ApplyColours = void (*)(Generator& generator, std::string& text, std::string_view fileName);

// Starts a text from a template, with a message in place of the first `key`.
void startForm(WorkingText& working, const Text& form, std::string_view key, const Text& message) {
  working.text.assign(form.view().substr(0, working.capacity));
  ReplaceFirst(working.text, key, message.view());
}

void replaceCards(Generator& generator, WorkingText& working) {
  if (working.text.find(kCardsKey) == std::string::npos) return;
  const std::string cards = CardSelect(generator);
  EnsureRoom(working, cards.size() + kCardsReserve);
  ReplaceFirst(working.text, kCardsKey, cards);
}

void encodeQuotes(std::string& text) {
  std::string encoded;
  std::size_t done = 0;
  for (std::size_t at = text.find('"'); at != std::string::npos; at = text.find('"', done)) {
    encoded.append(text, done, at - done).append("%22");
    done = at + 1;
  }
  text = std::move(encoded.append(text, done));
}

// What both previews do once the owner's texts are in place.
int finishPreview(Generator& generator, std::string& text, ApplyColours applyColours, bool hasCurrency) {
  Program& program = generator.program;
  if (program.project.projectScheme == nullptr) {
    ErrorBox(program, message::kNoScheme);
    return 0;
  }
  applyColours(generator, text, kPreviewName);
  ReplaceSome(generator, 4, text, "$USER", AccountUser(program.config), kPreviewName);
  ReplaceSome(generator, 4, text, "$VERSION", kProductVersion, kPreviewName);
  if (hasCurrency) ReplaceEvery(generator, text, "$CURRENCY", program.project.currency.view(), kPreviewName);
  ApplyCartColours(generator, text, kPreviewName);
  return WriteGeneratedFile(program, OutputPath(program.project, kPreviewName), text);
}

}  // namespace

std::string CardSelect(Generator& generator) {
  const CardEntry* cards = generator.program.project.acceptedCards;
  if (cards == nullptr) LogWarning(generator.log, message::kNoCards);
  std::string& list = generator.scratch;
  list = "<SELECT NAME=\"CardType\">\n";
  for (const CardEntry* card = cards; card != nullptr; card = card->next) {
    list.append("<OPTION VALUE=\"").append(card->name.view()).append("\">").append(card->name.view()).append("\n");
  }
  return list.append("</SELECT>");
}

void BuildOrderText(Generator& generator, WorkingText& working) {
  const StoreProject& project = generator.program.project;
  startForm(working, project.orderTemplate, kMessageKey, project.orderMessage);
  replaceCards(generator, working);
  encodeQuotes(working.text);
  ApplyOrderFormColours(generator, working.text, kRegisterName);
}

void BuildConfirmText(Generator& generator, WorkingText& working) {
  const StoreProject& project = generator.program.project;
  startForm(working, project.confirmTemplate, kConfirmKey, project.confirmMessage);
  encodeQuotes(working.text);
  ApplyConfirmationColours(generator, working.text, kRegisterName);
}

int PreviewOrderForm(Generator& generator) {
  const StoreProject& project = generator.program.project;
  WorkingText working{.text = {}, .capacity = kPreviewCapacity};
  startForm(working, project.orderTemplate, kMessageKey, project.orderMessage);
  replaceCards(generator, working);
  return finishPreview(generator, working.text, ApplyOrderFormColours, true);
}

int PreviewConfirmation(Generator& generator) {
  const StoreProject& project = generator.program.project;
  WorkingText working{.text = {}, .capacity = kPreviewCapacity};
  startForm(working, project.confirmTemplate, kConfirmKey, project.confirmMessage);
  return finishPreview(generator, working.text, ApplyConfirmationColours, false);
}

std::string FormPreviewPath(const StoreProject& project) {
  return std::string(project.projectDir.view()).append("\\web\\").append(kPreviewName);
}

}  // namespace varlo
