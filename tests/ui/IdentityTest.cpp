// Retained nodes: matched by id, else by kind and place; state lives in them.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

// Shows its name and how often it was clicked.
struct Counter {
  std::string name;

  View body(const Environment& environment) const {
    const State<int> count = environment.state<int>("count", 0);
    return Button([count] { count.set(count.value() + 1); },
                  Text(name + std::to_string(count.value())).font(Font::system(10)))
        .style(BareButtonStyle{});
  }
};

std::string labels(const TestHost& test) {
  std::string result;
  for (const SemanticsNode& node : test.host->semantics().children) {
    result += node.label + " ";
  }
  return result;
}

TEST(IdentityTest, StateOutlivesARedraw) {
  TestHost test({10, 10});
  test.show(Counter{"a"});
  test.click({5, 5});
  EXPECT_EQ(labels(test), "a1 ");
  test.update();
  EXPECT_EQ(labels(test), "a1 ");
}

TEST(IdentityTest, StateFollowsItsItemWhenItemsMove) {
  std::vector<std::string> names{"a", "b", "c"};
  TestHost test({30, 10});
  test.show([&](const Environment&) -> View {
    return HStack(0, forEach(
                         names, [](const std::string& name) { return name; },
                         [](const std::string& name, std::size_t) { return Counter{name}; }));
  });
  test.click({15, 5});
  EXPECT_EQ(labels(test), "a0 b1 c0 ");
  names = {"b", "c", "a"};
  test.update();
  EXPECT_EQ(labels(test), "b1 c0 a0 ");
  names = {"c", "a"};
  test.update();
  names = {"b", "c", "a"};
  test.update();
  EXPECT_EQ(labels(test), "b0 c0 a0 ") << "a returning view has new state";
}

TEST(IdentityTest, AConditionalSiblingDoesNotDisturbTheOthers) {
  bool isShown = false;
  TestHost test({30, 10});
  test.show([&](const Environment&) -> View {
    return HStack(0,
                  {when(isShown, [] { return Text("x").font(Font::system(10)); }), Counter{"a"}});
  });
  test.click({15, 5});
  EXPECT_EQ(labels(test), "a1 ");
  isShown = true;
  test.update();
  EXPECT_EQ(labels(test), "x a1 ");
}

TEST(IdentityTest, AnotherIdOrKindIsAnotherNode) {
  std::string id = "one";
  TestHost test({10, 10});
  test.show([&](const Environment&) { return View(Counter{"a"}).id(id); });
  test.click({5, 5});
  EXPECT_EQ(labels(test), "a1 ");
  id = "two";
  test.update();
  EXPECT_EQ(labels(test), "a0 ");
}

TEST(IdentityTest, AViewAppearsOnceUntilItIsRemoved) {
  bool isShown = true;
  int appearances = 0;
  TestHost test;
  test.show([&](const Environment&) -> View {
    return VStack(8, {when(isShown, [&] { return Text("a").onAppear([&] { ++appearances; }); })});
  });
  EXPECT_EQ(appearances, 1);
  test.update();
  EXPECT_EQ(appearances, 1);
  isShown = false;
  test.update();
  isShown = true;
  test.update();
  EXPECT_EQ(appearances, 2);
}

TEST(IdentityTest, AConditionThatDoesNotHoldMakesNoView) {
  EXPECT_TRUE(when(false, []() -> View {
                ADD_FAILURE() << "the content was made";
                return Text("a");
              }).isEmpty());
}

TEST(IdentityTest, OnlyAnotherValueOfALivingViewsStateAsksForARedraw) {
  struct Keeper {
    std::optional<State<int>>* kept;
    View body(const Environment& environment) const {
      *kept = environment.state<int>("n", 3);
      return Text("k");
    }
  };
  TestHost test;
  std::optional<State<int>> kept;
  test.show(Keeper{&kept});
  const int before = test.redrawRequests;
  kept->set(3);
  test.host->setSize(test.host->size());
  test.host->setAppearance(test.host->appearance());
  EXPECT_FALSE(test.host->needsUpdate());
  kept->set(4);
  EXPECT_TRUE(test.host->needsUpdate());
  EXPECT_EQ(test.redrawRequests, before + 1);
  test.host.reset();
  kept->set(5);
  EXPECT_EQ(kept->value(), 5);
  EXPECT_EQ(test.redrawRequests, before + 1);
}

TEST(StateDeathTest, StateIsOnlyAvailableInABody) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  TestHost test;
  const auto useInRoot = [](const Environment& environment) {
    return Text(std::to_string(environment.state("n", 0).value()));
  };
  EXPECT_DEATH(test.show(useInRoot), "state\\(\\) is for the body of a view");
  struct UseInHandler {
    View body(const Environment& environment) const {
      return Text("a").onAppear([environment] { environment.state("n", 0).set(1); });
    }
  };
  EXPECT_DEATH(test.show(UseInHandler{}), "state\\(\\) is for the body of a view");
}

TEST(StateDeathTest, ANameHasOneType) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  struct TwoTypes {
    View body(const Environment& environment) const {
      environment.state("n", 0).set(1);
      environment.state("n", false).set(true);
      return Text("a");
    }
  };
  TestHost test;
  EXPECT_DEATH(test.show(TwoTypes{}), "one name is used for state of two types");
}

}  // namespace
}  // namespace orvane::ui
