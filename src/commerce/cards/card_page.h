// What the wizard's page of payment cards and the dialog "Accepted Credit Cards" have in common: two lists, the
// buttons between them, and a field for a card that is in no list.
#pragma once

#include <string>
#include <vector>

#include "core/store/card_entry.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace cards {

enum : ControlId {
  kWindow = 3400,  // the dialog
  kKnown,
  kAccepted,
  kAdd,
  kRemove,
  kOther,
  kAddOther,
};

inline constexpr Row kMoveButtons[] = {
    {{{.kind = Kind::Space, .lines = kFill}}},
    {{{.id = kAdd, .kind = Kind::Button, .label = ">>"}}},
    {{{.id = kRemove, .kind = Kind::Button, .label = "<<"}}},
    {{{.kind = Kind::Space, .lines = kFill}}},
};
inline constexpr Row kRows[] = {
    {{{.kind = Kind::Text, .label = "Select all credit cards which your store will be accepting for payment."}}},
    {{{.id = kKnown,
       .kind = Kind::List,
       .label = "Credit Cards:",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::FixedHeadings | Option::Marks},
      {.kind = Kind::Box, .width = 48, .rows = kMoveButtons},
      {.id = kAccepted,
       .kind = Kind::List,
       .label = "Accepted Cards:",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::FixedHeadings | Option::Marks}},
     4},
    {{{.id = kOther, .kind = Kind::Edit, .label = "O&ther:", .labelWidth = 48, .buttons = {{kAddOther, ">>", 48}}}}},
};

}  // namespace cards

struct CardPage {
  explicit CardPage(Program& theProgram) : program(theProgram) {}

  Program& program;
  CardEntry* currentCatalogueCard = nullptr;
  std::vector<CardEntry*> known;  // the rows of the lists
  std::vector<CardEntry*> accepted;
};

// Fills the controls as the window opens.
void CardPageOpen(CardPage& page, Dialog& dialog);

// What happens in these controls. True when it was in one of them.
bool CardPageControl(CardPage& page, Dialog& dialog, const ControlEvent& event);

// The text of a row of either list; empty for another list.
[[nodiscard]] std::string CardPageText(const CardPage& page, ControlId list, int row);

}  // namespace varlo
