#include "shell/tabs/variable_changes.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/test_form.h"

namespace varlo {
namespace {

using namespace test;

struct VariableChanges : testing::Test, TestForm {
  void add(std::string_view name, std::string_view value = "v") {
    UserVariable* variable = UserVariableInit(nullptr);
    variable->name.assign(name);
    variable->value.assign(value);
    UserVariableAppend(project(), variable);
    if (project().currentVariable == nullptr) project().currentVariable = variable;
  }
  void remove(const std::set<int>& rows) {
    deleteVariables(shell, [&](int row) { return rows.count(row) != 0; });
  }
  // The names in order, the current one in brackets.
  std::string list() {
    std::string names;
    for (const UserVariable* variable = project().variables; variable != nullptr; variable = variable->next) {
      const bool isCurrent = variable == project().currentVariable;
      names.append(isCurrent ? "[" : "").append(variable->name.view()).append(isCurrent ? "] " : " ");
    }
    return names;
  }
};

TEST_F(VariableChanges, NewAppendsAVariableAndMakesItCurrent) {
  add("$A");
  newVariable(shell);
  EXPECT_EQ(list(), "$A [$NEW] ");
  EXPECT_EQ(project().currentVariable->value.view(), "New Variable");
  EXPECT_EQ(project().dirty, 1);
}

TEST_F(VariableChanges, NewInAnEmptyListMakesItsHead) {
  newVariable(shell);
  EXPECT_EQ(list(), "[$NEW] ");
}

TEST_F(VariableChanges, TwoVariablesNamedNewBothStay) {
  newVariable(shell);
  newVariable(shell);
  EXPECT_EQ(list(), "$NEW [$NEW] ");
}

TEST_F(VariableChanges, NewRefreshesCommandsAndListAndMarks) {
  newVariable(shell);
  EXPECT_EQ(view.calls,
            (std::vector<std::string>{"refreshCommandStates", "loadVariableList", "refreshCommandStates"}));
}

TEST_F(VariableChanges, PasteInsertsACopyBehindTheCurrentOne) {
  add("$A", "one");
  add("$B", "two");
  copyVariable(shell);
  EXPECT_EQ(project().dirty, 0) << "Copying changes nothing.";
  pasteVariable(shell);
  EXPECT_EQ(list(), "$A [$A] $B ");
  EXPECT_EQ(project().currentVariable->value.view(), "one");
  EXPECT_EQ(project().dirty, 1);
  EXPECT_EQ(view.calls, (std::vector<std::string>{"loadVariableList", "refreshCommandStates"}));
}

TEST_F(VariableChanges, PasteWithAnEmptyListMakesItsHead) {
  add("$A");
  copyVariable(shell);
  remove({0});
  EXPECT_EQ(list(), "");
  pasteVariable(shell);
  EXPECT_EQ(list(), "[$A] ");
  EXPECT_EQ(project().variables, project().variablesTail);
}

TEST_F(VariableChanges, ACopyIsApartFromItsVariable) {
  add("$A", "one");
  copyVariable(shell);
  project().currentVariable->value.assign("changed");
  pasteVariable(shell);
  EXPECT_EQ(project().currentVariable->value.view(), "one");
  pasteVariable(shell);
  EXPECT_EQ(list(), "$A $A [$A] ");
}

TEST_F(VariableChanges, ACopyReplacesTheOneBefore) {
  add("$A");
  add("$B");
  copyVariable(shell);
  project().currentVariable = project().variablesTail;
  copyVariable(shell);
  pasteVariable(shell);
  EXPECT_EQ(list(), "$A $B [$B] ");
}

TEST_F(VariableChanges, CopyWithoutACurrentOneKeepsTheFormerCopy) {
  add("$A");
  copyVariable(shell);
  remove({0});
  copyVariable(shell);
  pasteVariable(shell);
  EXPECT_EQ(list(), "[$A] ");
}

TEST_F(VariableChanges, PasteWithoutACopyDoesNothing) {
  add("$A");
  pasteVariable(shell);
  EXPECT_EQ(list(), "[$A] ");
  EXPECT_EQ(project().dirty, 0);
}

TEST_F(VariableChanges, DeleteTakesAllSelectedRows) {
  for (const char* name : {"$A", "$B", "$C", "$D"}) add(name);
  remove({1, 3});
  EXPECT_EQ(list(), "[$A] $C ");
  EXPECT_EQ(project().dirty, 1);
  EXPECT_EQ(view.calls, (std::vector<std::string>{"loadVariableList", "refreshCommandStates"}));
}

TEST_F(VariableChanges, DeleteOfTheHeadMakesTheNextOneHeadAndCurrent) {
  for (const char* name : {"$A", "$B", "$C"}) add(name);
  project().currentVariable = project().variablesTail;
  remove({0});
  EXPECT_EQ(list(), "[$B] $C ");
}

TEST_F(VariableChanges, DeleteOfAllLeavesNone) {
  for (const char* name : {"$A", "$B"}) add(name);
  remove({0, 1});
  EXPECT_EQ(project().variables, nullptr);
  EXPECT_EQ(project().variablesTail, nullptr);
  EXPECT_EQ(project().currentVariable, nullptr);
}

TEST_F(VariableChanges, DeleteWithoutASelectedRowDeletesNothingAndMarks) {
  add("$A");
  remove({});
  EXPECT_EQ(list(), "[$A] ");
  EXPECT_EQ(project().dirty, 1);
}

TEST_F(VariableChanges, ACopyOutlivesTheProjectThatItCameFrom) {
  add("$A", std::string(300, 'v'));
  copyVariable(shell);
  UserVariableListFree(project(), project().variables);
  pasteVariable(shell);
  EXPECT_EQ(project().currentVariable->value.view(), std::string(300, 'v'));
}

}  // namespace
}  // namespace varlo
