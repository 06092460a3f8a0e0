#include "core/program/work.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace varlo::test {
namespace {

// Writes down the turns of work, and whether the program was at work when it was told.
struct WatchingView : View {
  const Program* program = nullptr;
  std::string told;
  void workBegan() override { told.append(program->atWork ? "began, " : "began too late, "); }
  void workEnded() override { told.append(program->atWork ? "not ended yet, " : "ended, "); }
};

TEST(Work, HasTheProgramFromItsFirstStepToItsLast) {
  TestProgram t;
  EXPECT_FALSE(t.program.atWork);
  {
    const Work work(t.program);
    EXPECT_TRUE(static_cast<bool>(work));
    EXPECT_TRUE(t.program.atWork);
  }
  EXPECT_FALSE(t.program.atWork);
}

TEST(Work, DoesNotBeginWhileOtherWorkIsUnderWay) {
  TestProgram t;
  const Work work(t.program);
  {
    const Work second(t.program);
    EXPECT_FALSE(static_cast<bool>(second));
  }
  EXPECT_TRUE(t.program.atWork);  // the second takes nothing with it
}

TEST(Work, TellsTheViewWhenItHasBegunAndWhenItHasEnded) {
  TestProgram t;
  WatchingView view;
  Program program{t.files, t.clock, t.screen, t.clipboard, view};
  view.program = &program;
  {
    const Work work(program);
    const Work refused(program);
  }
  EXPECT_EQ(view.told, "began, ended, ");
}

}  // namespace
}  // namespace varlo::test
