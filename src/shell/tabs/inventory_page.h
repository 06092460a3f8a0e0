// InventoryPage: the page of the Inventory tab, on which the current node is edited.
#pragma once

#include "shell/tabs/inventory_fields.h"
#include "shell/tabs/tab_page.h"

namespace varlo {

class InventoryPage : public TabPage {
 public:
  using TabPage::TabPage;

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }
  void notified(Dialog& page, const ControlEvent& event) override;
  void fill(Dialog& page) override;
  void read(Dialog& page) override;
  void showStates(Dialog& page, const CommandStates::Page& states) override;
  [[nodiscard]] ControlId richEdit() const override { return inventory::kDescription; }

 protected:
  void prepare(Dialog& page) override;

 private:
  void showDescription(Dialog& page, const StoreNode* node);
  void store(StoreNode& node, StoreNode& scratch);
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
