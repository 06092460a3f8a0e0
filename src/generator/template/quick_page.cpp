#include "generator/template/quick_page.h"

#include "core/program/program.h"
#include "core/store/store_node.h"
#include "core/store/user_variable.h"
#include "generator/items/node_images.h"
#include "generator/template/item_steps.h"
#include "generator/template/substitute_item.h"

namespace varlo {

void QuickPage::begin(const FillPlan& plan, const PreparedText& text, const StoreNode& item) {
  plan_ = &plan;
  text_ = &text;
  values_.take(item);
  assembly_.start(plan, text);
  composedLink_ = metServer_ = metIndex_ = composedSubindex_ = false;
  letter_ = 0;
  branch_ = nullptr;
  tableOne_.clear();
}

bool QuickPage::fillPage(const FillPlan& plan, const PreparedText& text, StoreNode& node, const std::string* shelf,
                         std::string& page) {
  if (!text.quick || values_.generator().program.project.projectScheme == nullptr) return false;
  begin(plan, text, node);
  for (const Use& use : text.uses) {
    if (assembly_.isOpen(use) && !take(use, node, shelf)) return false;
  }
  if (metIndex_) {
    if (!composeSubindex(node)) return false;
    const std::string_view index = index_;
    indexParts_ = {index.substr(0, place_), {}, {}};
    if (place_ < index.size()) indexParts_ = {indexParts_[0], subindex_, index.substr(place_ + kSubindexKey.size())};
  }
  if (!assembly_.finish(page, 0)) return false;
  report(node, node);
  if (!tableOne_.empty()) {
    values_.generator().scratch = tableOne_;
  } else if (metIndex_) {
    values_.generator().scratch = index_;
  }
  CopyNodeImages(values_.generator(), node, node);
  return true;
}

bool QuickPage::appendItem(const FillPlan& plan, const PreparedText& block, const StoreNode& item,
                           const StoreNode& page, std::string& result) {
  if (!block.quick || values_.generator().program.project.projectScheme == nullptr) return false;
  begin(plan, block, item);
  for (const Use& use : block.uses) {
    const FillStep& step = plan.steps()[use.step];
    if (!assembly_.isOpen(use)) continue;
    if (step.source == FillSource::Variable && !takeVariable(use, step.number)) return false;
    if (step.source == FillSource::Item && !takeItemStep(use, step.number)) return false;
  }
  const std::size_t before = result.size();
  if (!assembly_.finish(result, before)) {
    result.resize(before);
    return false;
  }
  report(item, page);
  return true;
}

// The messages of the pass, in their order, and the link that it composed.
void QuickPage::report(const StoreNode& item, const StoreNode& page) {
  Generator& generator = values_.generator();
  if (composedLink_) {
    generator.scratch = *values_.addLink();
    ReportMissingCode(generator, item, page);
  }
  if (metServer_) ReportMissingServer(generator);
}

void QuickPage::fillIfThere(const Use& use, const Value& value) {
  if (value) assembly_.fill(use, *value);
}

// Whether a step of this source still finds its key.
bool QuickPage::isOpen(FillSource source) const {
  for (const Use& use : text_->uses) {
    if (plan_->steps()[use.step].source == source && assembly_.isOpen(use)) return true;
  }
  return false;
}

bool QuickPage::take(const Use& use, StoreNode& node, const std::string* shelf) {
  const FillStep& step = plan_->steps()[use.step];
  switch (step.source) {
    case FillSource::Early:
    case FillSource::Item:
      return takeItemStep(use, step.number);
    case FillSource::Variable:
      return takeVariable(use, step.number);
    case FillSource::Shelf:
      if (shelf != nullptr) assembly_.fill(use, *shelf);
      return true;
    case FillSource::IndexBack:
      if (isOpen(FillSource::Index)) fillIfThere(use, BackOfIndex(node, indexBack_));
      return true;
    case FillSource::Index:
      return takeIndex(use, node);
    case FillSource::Back:
      fillIfThere(use, BackOfPage(node, pageBack_));
      return true;
    case FillSource::Letter:
      if (letter_ == 0) return true;
      letterPage_ = LetterPage(letter_);
      assembly_.fill(use, letterPage_);
      return true;
    case FillSource::ProductTwo:
    case FillSource::ProductOne:
      if (tableOne_.empty()) {
        tableTwo_ = ProductTableTwo(values_, node);
        tableOne_ = ProductTableOne(values_, node);
      }
      assembly_.fill(use, step.source == FillSource::ProductTwo ? tableTwo_ : tableOne_);
      return true;
    case FillSource::Subindex:
      if (!composeSubindex(node)) return false;
      assembly_.fill(use, subindex_);
      return true;
    case FillSource::Url:
      assembly_.fill(use, std::string_view());
      return true;
  }
  return false;
}

bool QuickPage::takeItemStep(const Use& use, std::size_t number) {
  const ItemStep& step = ItemSteps()[number];
  if (step.role == StepRole::Link) composedLink_ = true;
  if (step.role == StepRole::Server) metServer_ = true;
  const Value value = step.value(values_);
  if (step.repeat == Repeat::Tag && (!value || value->empty())) return assembly_.removeTagAware(use);
  fillIfThere(use, value);
  return true;
}

bool QuickPage::takeVariable(const Use& use, std::size_t number) {
  fillIfThere(use, ValueOf(UserVariableAt(values_.generator().program.project, number)->value));
  return true;
}

bool QuickPage::takeIndex(const Use& use, StoreNode& node) {
  const IndexPlan plan = PlanIndex(node);
  metIndex_ = true;
  branch_ = plan.branch;
  if (!composeIndex(plan, node)) return false;
  assembly_.fill(use, indexParts_);
  return true;
}

// The lists that a page shows have no node in common, so nothing has to be stamped. Only a node whose
// `prev` is odd can have its siblings listed from two starts, and only one whose `parent` is odd can stand
// in a list beside its parent.
bool QuickPage::composeIndex(const IndexPlan& plan, StoreNode& node) {
  if (plan.listsSiblings && plan.further != nullptr && plan.further != plan.first) return false;
  BeginIndex(index_, values_, plan);
  place_ = std::string::npos;
  StoreNode* listed = plan.listsSiblings ? plan.first : plan.further;
  if (listed != nullptr && !addLevel(levels_.of(listed), node, plan.branch)) return false;
  EndIndex(index_, values_);
  if (place_ == std::string::npos) place_ = index_.size();
  return true;
}

// Adds the rows of a level to the index; the row of the page's own node, or else of the branch, has the
// place for $SUBINDEX. False when both are there, or too many rows.
bool QuickPage::addLevel(LevelRows& level, const StoreNode& own, const StoreNode* branch) {
  if (level.isTooLong()) return false;
  std::size_t open = level.find(own);
  const bool isOwn = open != LevelRows::kNotThere;
  if (isOwn) letter_ = LetterOf(own);
  if (branch != nullptr) {
    const std::size_t branchRow = level.find(*branch);
    if (isOwn && branchRow != LevelRows::kNotThere) return false;
    if (!isOwn) open = branchRow;
  }
  if (open == LevelRows::kNotThere) {
    index_.append(level.all());
    return true;
  }
  index_.append(level.before(open));
  const std::size_t row = index_.size();
  if (isOwn) {
    OwnRow(index_, values_, own, true);
  } else {
    NodeRow(index_, values_, *branch, true);
  }
  place_ = index_.rfind(kSubindexKey);
  if (place_ < row) place_ = std::string::npos;
  index_.append(level.behind(open));
  return true;
}

// Composes the list for $SUBINDEX once for a page. False when it has too many rows.
bool QuickPage::composeSubindex(const StoreNode& node) {
  if (composedSubindex_) return true;
  composedSubindex_ = true;
  subindex_.clear();
  const StoreNode* parent = SubindexLevel(node, branch_);
  if (parent == nullptr) return true;
  LevelRows& level = levels_.of(parent->child);
  if (level.isTooLong()) return false;
  if (level.isEmpty()) return true;
  subindex_ = kSubindexBegin;
  const std::size_t own = level.find(node);
  if (own == LevelRows::kNotThere) {
    subindex_.append(level.all());
  } else {
    subindex_.append(level.before(own));
    OwnRow(subindex_, values_, node, false);
    subindex_.append(level.behind(own));
  }
  subindex_.append(kSubindexEnd);
  return true;
}

}  // namespace varlo
