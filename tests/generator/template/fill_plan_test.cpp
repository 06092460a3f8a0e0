#include "generator/template/fill_plan.h"

#include <memory>

#include <gmock/gmock.h>

#include "core/store/user_variable.h"

namespace varlo {
namespace {

using testing::ElementsAre;

// A list of variables with these names.
class Variables {
 public:
  Variables(std::initializer_list<const char*> names) {
    for (const char* name : names) {
      list_.push_back(std::make_unique<UserVariable>());
      list_.back()->name.assign(name);
      if (list_.size() > 1) list_[list_.size() - 2]->next = list_.back().get();
    }
  }
  [[nodiscard]] UserVariable* head() const { return list_.empty() ? nullptr : list_.front().get(); }

 private:
  std::vector<std::unique_ptr<UserVariable>> list_;
};

std::vector<std::string> keys(const FillPlan& plan, FillSource source) {
  std::vector<std::string> keys;
  for (const FillStep& step : plan.steps()) {
    if (step.source == source) keys.push_back(step.key);
  }
  return keys;
}

TEST(FillPlan, HasTheStepsOfAPageInTheirOrder) {
  const Variables variables{"$ONE", "$TWO"};
  const FillPlan plan(variables.head());
  std::vector<FillSource> order;
  for (const FillStep& step : plan.steps()) {
    if (order.empty() || order.back() != step.source) order.push_back(step.source);
  }
  using S = FillSource;
  EXPECT_THAT(order, ElementsAre(S::Early, S::Shelf, S::Variable, S::Item, S::IndexBack, S::Index, S::Back, S::Letter,
                                 S::ProductTwo, S::ProductOne, S::Subindex, S::Url));
  EXPECT_THAT(keys(plan, S::Early),
              ElementsAre("$STORETITLE", "$PAGETITLE", "$BODY", "$DESCRIPTION", "$KEYWORDS", "$UPDATED"));
  EXPECT_THAT(keys(plan, S::Variable), ElementsAre("$ONE", "$TWO"));
  EXPECT_THAT(keys(plan, S::ProductTwo), ElementsAre("$PRODUCTS2", "$PRODUCT2"));
  EXPECT_THAT(keys(plan, S::ProductOne), ElementsAre("$PRODUCTS", "$PRODUCT"));
  EXPECT_EQ(keys(plan, S::Item).size(), 65U);
}

TEST(FillPlan, KnowsHowOftenEachKeyIsReplaced) {
  const Variables variables{"$ONE"};
  const FillPlan plan(variables.head());
  for (const FillStep& step : plan.steps()) {
    if (step.source == FillSource::Variable) {
      EXPECT_EQ(step.times, 101);
    }
    if (step.key == "$UPDATED" || step.key == "$URL" || step.key == "$SHELF" || step.key == "indexa.htm") {
      EXPECT_EQ(step.times, 1) << step.key;
    }
    if (step.key == "$BODY" || step.key == "$TITLE") {
      EXPECT_EQ(step.times, 4);
    }
    if (step.key == "$COST" || step.key == "$BACK" || step.key == "$F1") {
      EXPECT_EQ(step.times, kEveryTime);
    }
    const bool isNumbered = step.key.back() >= '1' && step.key.back() <= '6' && !step.key.starts_with("$PRODUCT");
    EXPECT_EQ(step.tagAware, isNumbered || step.key == "$HOMELINK" || step.key == "$IMAGE" || step.key == "$LINK")
        << step.key;
  }
}

TEST(FillPlan, IsQuickForNamesThatBeginWithTheirOnlyDollarSign) {
  EXPECT_TRUE(FillPlan(nullptr).isQuick());
  EXPECT_TRUE(FillPlan(Variables{"$ONE", "", "$x y", "$-"}.head()).isQuick());
  for (const char* name : {"ONE", "$", "$A$B", "$<", "$a>b"}) {
    EXPECT_FALSE(FillPlan(Variables{"$ONE", name}.head()).isQuick()) << name;
  }
}

TEST(FillPlan, TellsKeysAndTheFrontsOfKeys) {
  const Variables variables{"$MINE"};
  const FillPlan plan(variables.head());
  EXPECT_TRUE(plan.isKeyAt("$MINE"));
  EXPECT_TRUE(plan.isKeyAt("$PRODUCTS2x"));
  EXPECT_TRUE(plan.isKeyAt("$SHELF"));
  EXPECT_FALSE(plan.isKeyAt("$MIN"));
  EXPECT_FALSE(plan.isKeyAt("$NAME"));
  EXPECT_FALSE(plan.isKeyAt("$"));
  EXPECT_FALSE(plan.isKeyAt(""));
  EXPECT_TRUE(plan.isFrontOfKey("$"));
  EXPECT_TRUE(plan.isFrontOfKey("$MIN"));
  EXPECT_TRUE(plan.isFrontOfKey("$PRODUCT"));
  EXPECT_TRUE(plan.isFrontOfKey("index"));
  EXPECT_FALSE(plan.isFrontOfKey("$MINE"));
  EXPECT_FALSE(plan.isFrontOfKey("$BODY "));
}

}  // namespace
}  // namespace varlo
