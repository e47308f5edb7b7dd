// Tests that the monkey's sequence of actions depends on the seed alone and covers every kind.
#include "Plan.h"

#include <set>

namespace {

std::vector<std::string> texts(uint64_t seed, int count)
{
    Plan plan(seed);
    std::vector<std::string> list;
    for (int i = 0; i < count; ++i) {
        list.push_back(textOf(plan.next()));
    }
    return list;
}

TEST(Plan, TheSameSeedRepeatsTheActions)
{
    EXPECT_EQ(texts(7, 1000), texts(7, 1000));
}

TEST(Plan, AnotherSeedGivesOtherActions)
{
    EXPECT_NE(texts(7, 20), texts(8, 20));
}

TEST(Plan, EveryKindOccurs)
{
    Plan plan(1);
    std::set<ActionKind> actions;
    std::set<StepKind> steps;
    for (int i = 0; i < 2000; ++i) {
        const Action action = plan.next();
        actions.insert(action.kind);
        for (const Step& step : action.steps) {
            steps.insert(step.kind);
        }
    }
    EXPECT_EQ(actions.size(), 18U);
    EXPECT_EQ(steps.size(), 11U);
}

TEST(Plan, AnActionIsPrintedWithItsSteps)
{
    EXPECT_EQ(textOf({ActionKind::properties, 27, 12, {{StepKind::click, 3}, {StepKind::goes, 47}}}),
              "properties n7 #12: click 3, goes l7 #47");
    EXPECT_EQ(textOf({ActionKind::comes, 19, 0, {}}), "comes l19 #0");
}

} // namespace
