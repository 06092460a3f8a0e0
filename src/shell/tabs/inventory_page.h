// InventoryPage: the page of the Inventory tab, on which the current node is edited.
#pragma once

#include "shell/tabs/tab_page.h"

namespace varlo {

class InventoryPage : public TabPage {
 public:
  using TabPage::TabPage;

  void notified(Dialog& page, const ControlEvent& event) override;
  void resized(Dialog& page) override;

 protected:
  void prepare(Dialog& page) override;

 private:
  void applyRule(Dialog& page, const ControlEvent& event);
  void titleChanged();
  void templateTouched(Dialog& page);
  void templateChosen(Dialog& page);
  void enableImageButtons(Dialog& page);
  void focusGained(ControlId field);
  void pressed(Dialog& page, ControlId button);
  void chooseImage(Dialog& page, ControlId field, std::string_view title);
};

}  // namespace varlo
