#include "commerce/cards/accepted_cards_dialog.h"

#include "core/program/program.h"
#include "platform/item_images.h"

namespace varlo {
namespace {

constexpr FootButton kFoot[] = {{kOk, "&OK", Option::Default}, {kHelp, "&Help"}};

}  // namespace

constinit const DialogShape AcceptedCardsDialog::kShape{
    .id = cards::kWindow, .title = "Accepted Credit Cards", .size = {460, 300}, .rows = cards::kRows, .foot = kFoot};

void AcceptedCardsDialog::opened(Dialog& dialog) {
  CardPageOpen(page_, dialog);
  page_.program.view.showHelp(cards::kWindow);
}

void AcceptedCardsDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.notice == Notice::GotFocus) page_.program.view.showHelp(event.control);
  if (CardPageControl(page_, dialog, event) || event.notice != Notice::Clicked) return;
  if (event.control == kOk) dialog.end(1);
  if (event.control == kHelp) page_.program.view.openHelpPane(cards::kWindow);
}

std::string AcceptedCardsDialog::cellText(ControlId list, int row, int /*column*/) {
  return CardPageText(page_, list, row);
}

int AcceptedCardsDialog::rowMark(ControlId /*list*/, int /*row*/) { return item_image::kCard; }

void ShowAcceptedCards(Program& program) {
  AcceptedCardsDialog logic(program);
  program.screen.runDialog(logic);
  program.view.loadCardList();
}

}  // namespace varlo
