// The dialog "Accepted Credit Cards".
#pragma once

#include "commerce/cards/card_page.h"

namespace varlo {

class AcceptedCardsDialog : public DialogLogic {
 public:
  explicit AcceptedCardsDialog(Program& program) : page_(program) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }
  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  std::string cellText(ControlId list, int row, int column) override;
  int rowMark(ControlId list, int row) override;

 private:
  CardPage page_;
};

// Shows the dialog. However it is closed, the Order Form tab then shows the cards anew.
void ShowAcceptedCards(Program& program);

}  // namespace varlo
