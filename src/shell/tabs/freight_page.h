// FreightPage: the page of the Freight tab. It shows all regions of the store for one delivery method, and edits the
// table of the selected one.
#pragma once

#include <string>
#include <vector>

#include "core/store/freight_record.h"
#include "shell/tabs/tab_page.h"

namespace varlo {

namespace freight {

enum : ControlId {
  kWindow = 2200,
  kMethod,
  kWizard,
  kMethods,
  kRegions,
  kRegionName,
  kRule,
  kCell1,  // the other eleven follow
};

}  // namespace freight

class FreightPage : public TabPage {
 public:
  using TabPage::TabPage;

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }
  void notified(Dialog& page, const ControlEvent& event) override;
  std::string cellText(ControlId list, int row, int column) override;
  int rowMark(ControlId list, int row) override;

  void fill(Dialog& page) override;
  void read(Dialog& page) override;
  void refillList(Dialog& page, PageList list) override;
  [[nodiscard]] FocusPlace focusPlaceOf(ControlId control) const override;
  void copy(Dialog& page) override;
  void paste(Dialog& page) override;
  void remove(Dialog& page) override;
  bool selectAll(Dialog& page) override;

 protected:
  void prepare(Dialog& page) override;

 private:
  struct MenuRow;
  static const MenuRow kMenu[];

  void fillMethods(Dialog& page);
  void fillRegions(Dialog& page);
  void methodChosen(Dialog& page);
  void inList(Dialog& page, const ControlEvent& event);
  void regionChosen(int row);
  void doubleClicked(Dialog& page, int row);
  void sort(Dialog& page, int column);
  void keyPressed(Dialog& page, const ControlEvent& event);
  void showMenu(Dialog& page);
  void pressed(ControlId button);
  void repaintRows(Dialog& page) const;

  void addOrRemoveRegions(Dialog& page);
  void clear(Dialog& page);
  void import(Dialog& page);
  void enable(Dialog& page);
  void disable(Dialog& page);
  void selectAllRegions(Dialog& page);

  [[nodiscard]] FreightRegion* regionOf(int row) const;
  [[nodiscard]] int rowOf(const FreightRegion* region) const;
  [[nodiscard]] std::vector<FreightRegion*> selectedRegions(Dialog& page) const;

  std::vector<FreightRegion*> rows_;
  std::vector<int> order_;  // in which they are displayed
  bool filling_ = false;    // the list is being filled
};

}  // namespace varlo
