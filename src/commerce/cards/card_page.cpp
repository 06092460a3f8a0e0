#include "commerce/cards/card_page.h"

#include "commerce/cards/accepted_cards.h"
#include "core/forms/field_text.h"
#include "core/program/program.h"

namespace varlo {
namespace {

using namespace cards;

constexpr int kColumnWidth = 160;
constexpr ListColumn kKnownColumn[] = {{"Credit Cards:", kColumnWidth}};
constexpr ListColumn kAcceptedColumn[] = {{"Accepted Cards:", kColumnWidth}};

CardEntry* selected(Dialog& dialog, ControlId list, const std::vector<CardEntry*>& rows) {
  const int row = dialog.selectedRow(list);
  return row >= 0 && row < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(row)] : nullptr;
}

// A selection in one list takes the button of the other away.
void followSelection(Dialog& dialog, bool hasSelection, ControlId button, ControlId other) {
  dialog.enable(button, hasSelection);
  if (hasSelection) dialog.enable(other, false);
}

void knownSelected(CardPage& page, Dialog& dialog) {
  page.currentCatalogueCard = selected(dialog, kKnown, page.known);
  followSelection(dialog, page.currentCatalogueCard != nullptr, kAdd, kRemove);
}

void acceptedSelected(CardPage& page, Dialog& dialog) {
  page.program.project.currentCard = selected(dialog, kAccepted, page.accepted);
  followSelection(dialog, page.program.project.currentCard != nullptr, kRemove, kAdd);
}

void fillKnown(CardPage& page, Dialog& dialog) {
  page.known = OfferedCards(page.program.config);
  page.currentCatalogueCard = nullptr;
  dialog.setRowCount(kKnown, static_cast<int>(page.known.size()));
  dialog.enable(kAdd, false);
}

void fillAccepted(CardPage& page, Dialog& dialog) {
  page.accepted = AcceptedCards(page.program.project);
  dialog.setRowCount(kAccepted, static_cast<int>(page.accepted.size()));
  dialog.enable(kRemove, false);
}

// The row behind the accepted one has its number afterwards.
void accept(CardPage& page, Dialog& dialog) {
  const int row = dialog.selectedRow(kKnown);
  if (CardAccept(page.program, page.currentCatalogueCard) == 0) return;
  fillAccepted(page, dialog);
  fillKnown(page, dialog);
  if (row < static_cast<int>(page.known.size())) dialog.selectRow(kKnown, row);
}

void remove(CardPage& page, Dialog& dialog) {
  CardEntry*& current = page.program.project.currentCard;
  const bool wasTyped = current != nullptr && current->custom != 0;
  if (CardRemove(page.program) == 0) return;
  const CardEntry* neighbour = current;
  if (!wasTyped) fillKnown(page, dialog);
  fillAccepted(page, dialog);
  for (std::size_t row = 0; row < page.accepted.size(); ++row) {
    if (page.accepted[row] == neighbour) dialog.selectRow(kAccepted, static_cast<int>(row));
  }
}

void acceptTyped(CardPage& page, Dialog& dialog) {
  CardAcceptTyped(page.program, FieldText(dialog, kOther).get());
  fillAccepted(page, dialog);
}

void pressed(CardPage& page, Dialog& dialog, ControlId button) {
  if (button == kAdd) accept(page, dialog);
  if (button == kRemove) remove(page, dialog);
  if (button == kAddOther) acceptTyped(page, dialog);
}

void enableOther(Dialog& dialog) { dialog.enable(kAddOther, !dialog.text(kOther).empty()); }

}  // namespace

void CardPageOpen(CardPage& page, Dialog& dialog) {
  dialog.setColumns(kKnown, kKnownColumn);
  dialog.setColumns(kAccepted, kAcceptedColumn);
  fillKnown(page, dialog);
  fillAccepted(page, dialog);
  enableOther(dialog);
}

bool CardPageControl(CardPage& page, Dialog& dialog, const ControlEvent& event) {
  if (event.control < kKnown || event.control > kAddOther) return false;
  if (event.notice == Notice::SelectionChanged && event.control == kKnown) knownSelected(page, dialog);
  if (event.notice == Notice::SelectionChanged && event.control == kAccepted) acceptedSelected(page, dialog);
  if (event.notice == Notice::Changed && event.control == kOther) enableOther(dialog);
  if (event.notice == Notice::Clicked) pressed(page, dialog, event.control);
  return true;
}

std::string CardPageText(const CardPage& page, ControlId list, int row) {
  if (list != kKnown && list != kAccepted) return {};
  const std::vector<CardEntry*>& rows = list == kKnown ? page.known : page.accepted;
  const auto number = static_cast<std::size_t>(row);
  return number < rows.size() ? std::string(rows[number]->name.view()) : std::string();
}

}  // namespace varlo
