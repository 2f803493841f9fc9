// What stands inside what, against walks upwards from every control; and what a change resets.
#include "access/model/control_index.h"

#include <algorithm>
#include <numeric>
#include <random>

#include "access/access_fixture.h"

namespace tarrowin {
namespace {

constexpr std::int32_t kTabControl = 123, kPage = 124;

using Positions = std::vector<std::size_t>;

// Whether the control is met by going up from one of the holder's, however they run in circles.
bool isInside(const std::vector<ControlModel>& controls, std::size_t control, std::size_t holder) {
  std::size_t at = control;
  for (std::size_t steps = 0; steps < controls.size(); ++steps) {
    at = controls[at].parent;
    if (at == ControlModel::kNoParent) return false;
    if (at == holder) return control != holder;
  }
  return false;
}

template <class Condition>
Positions positionsWhere(std::size_t count, Condition condition) {
  Positions result;
  for (std::size_t i = 0; i < count; ++i)
    if (condition(i)) result.push_back(i);
  return result;
}

std::vector<ControlModel> randomControls(std::mt19937& random, std::size_t count, bool cyclic) {
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  Positions order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::shuffle(order.begin(), order.end(), random);
  std::vector<ControlModel> controls(count);
  for (std::size_t i = 0; i < count; ++i) {
    ControlModel& control = controls[order[i]];
    control.name = (below(2) != 0 ? "Box" : "box") + std::to_string(below(count));
    control.type = below(2) != 0 ? kPage : kTabControl;
    if (cyclic && below(4) != 0) control.parent = below(count);
    if (!cyclic && i > 0 && below(4) != 0) control.parent = order[below(i)];
  }
  return controls;
}

TEST(ControlIndexTest, ListsAreThoseOfANaiveScan) {
  std::mt19937 random(7);
  for (int round = 0; round < 400; ++round) {
    const std::size_t count = 1 + random() % 40;
    const auto controls = randomControls(random, count, round % 2 != 0);
    ControlIndex index(controls);
    EXPECT_EQ(index.all()->size(), count);
    for (std::size_t holder = 0; holder < count; ++holder) {
      EXPECT_EQ(*index.inside(holder), positionsWhere(count, [&](std::size_t i) {
        return isInside(controls, i, holder);
      }));
      EXPECT_EQ(*index.pagesOf(holder), positionsWhere(count, [&](std::size_t i) {
        return controls[i].parent == holder && controls[i].type == kPage;
      }));
    }
  }
}

TEST(ControlIndexTest, NamesAreFoundAsByAScanOfTheList) {
  std::mt19937 random(8);
  const CaseFolding folding{CodePage()};
  for (int round = 0; round < 200; ++round) {
    const std::size_t count = 1 + random() % 20;
    const auto controls = randomControls(random, count, false);
    ControlIndex index(controls);
    for (std::size_t holder = 0; holder < count; ++holder) {
      const ControlList list = index.inside(holder);
      for (std::size_t i = 0; i < count; ++i) {
        for (const char* prefix : {"Box", "box", "BOX"}) {
          const std::string name = prefix + std::to_string(i);
          std::size_t expected = SIZE_MAX;
          for (std::size_t at = list->size(); at-- > 0;)
            if (folding.equal(controls[(*list)[at]].name, name)) expected = at;
          for (std::size_t at = list->size(); at-- > 0;)
            if (controls[(*list)[at]].name == name) expected = at;
          EXPECT_EQ(index.find(*list, name, folding), expected) << name;
        }
      }
    }
  }
}

// Deeper than the lists that are kept: some are dropped, and held ones stay.
TEST(ControlIndexTest, ChainOfControlsInEachOther) {
  constexpr std::size_t kCount = 300;
  std::vector<ControlModel> controls(kCount);
  for (std::size_t i = 1; i < kCount; ++i) controls[i].parent = i - 1;
  ControlIndex index(controls);
  const ControlList first = index.inside(0);
  for (int round = 0; round < 2; ++round) {
    for (std::size_t holder = 0; holder < kCount; ++holder) {
      const ControlList inside = index.inside(holder);
      ASSERT_EQ(inside->size(), kCount - 1 - holder);
      for (std::size_t i = 0; i < inside->size(); ++i) ASSERT_EQ((*inside)[i], holder + 1 + i);
    }
  }
  EXPECT_EQ(first->size(), kCount - 1);
}

TEST(ControlIndexTest, ListIsSharedByAllWhoAsk) {
  std::vector<ControlModel> controls(3);
  controls[2].parent = 0;
  ControlIndex index(controls);
  EXPECT_EQ(index.inside(0), index.inside(0));
  EXPECT_EQ(index.pagesOf(0), index.pagesOf(0));
  EXPECT_EQ(index.all(), index.all());
}

class NestedControlsTest : public AccessTest {
 protected:
  ObjectRef control(const ObjectRef& form, const std::string& name) {
    return child(form, "Controls", {name});
  }
  std::vector<std::string> names(const ObjectRef& collection) {
    std::vector<std::string> result;
    for (std::int32_t i = 0; i < number(collection, "Count"); ++i)
      result.push_back(text(item(collection, i), "Name"));
    return result;
  }
};

TEST_F(NestedControlsTest, RandomNestingsOfARecordingInListOrder) {
  std::mt19937 random(9);
  for (int round = 0; round < 10; ++round) {
    auto controls = randomControls(random, 30, false);
    std::string json = R"({"snapshot":1,"forms":[{"name":"f","controls":[)";
    for (std::size_t i = 0; i < controls.size(); ++i) {
      const auto nameOf = [](std::size_t position) { return "c" + std::to_string(position); };
      json += i ? "," : "";
      json += R"({"name":")" + nameOf(i) + R"(","type":)" + std::to_string(controls[i].type);
      if (controls[i].parent != ControlModel::kNoParent)
        json += R"(,"parent":")" + nameOf(controls[i].parent) + '"';
      json += "}";
    }
    openRecording(json + "]}]}");
    const ObjectRef form = openForm("f");
    for (std::size_t holder = 0; holder < controls.size(); ++holder) {
      std::vector<std::string> inside, pages;
      for (std::size_t i = 0; i < controls.size(); ++i) {
        if (!isInside(controls, i, holder)) continue;
        inside.push_back("c" + std::to_string(i));
        if (controls[i].parent == holder && controls[i].type == kPage)
          pages.push_back(inside.back());
      }
      const ObjectRef object = control(form, "c" + std::to_string(holder));
      EXPECT_EQ(names(child(object, "Controls")), inside);
      if (controls[holder].type == kTabControl) {
        EXPECT_EQ(names(child(object, "Pages")), pages);
      }
    }
  }
}

constexpr std::string_view kGroup = R"({"snapshot": 1, "forms": [{"name": "f",
  "sections": [{"number": 0}, {"number": 1}],
  "controls": [{"name": "grp", "type": 107, "properties": {"Section": 0}},
               {"name": "optA", "type": 105, "parent": "grp", "properties": {"Section": 0}},
               {"name": "optB", "type": 105, "parent": "grp", "properties": {"Section": 0}}]}]})";

TEST_F(NestedControlsTest, NewNameIsFoundAndTheOldOneNoMore) {
  openRecording(kGroup);
  const ObjectRef form = openForm("f");
  const ObjectRef inside = child(control(form, "grp"), "Controls");
  EXPECT_EQ(text(item(inside, "OPTA"), "Name"), "optA");
  control(form, "optA")->put("Name", "optNew");
  for (const ObjectRef& collection : {inside, child(control(form, "grp"), "Controls")}) {
    EXPECT_EQ(text(item(collection, "optnew"), "Name"), "optNew");
    EXPECT_EQ(errorOf([&] { item(collection, "optA"); }), 2465);
    EXPECT_EQ(names(collection), (std::vector<std::string>{"optNew", "optB"}));
  }
  EXPECT_EQ(text(item(form, "optNew"), "Name"), "optNew");
}

TEST_F(NestedControlsTest, EachChangeOfTheSectionCountsAtOnce) {
  openRecording(kGroup);
  const ObjectRef form = openForm("f");
  const auto inSection = [&](std::int32_t section) {
    return names(child(child(form, "Section", {section}), "Controls"));
  };
  EXPECT_EQ(inSection(1), std::vector<std::string>());
  control(form, "optA")->put("Section", 1);
  EXPECT_EQ(inSection(1), std::vector<std::string>{"optA"});
  control(form, "optB")->put("Section", 1);
  EXPECT_EQ(inSection(1), (std::vector<std::string>{"optA", "optB"}));
  control(form, "optA")->put("Section", 0);
  EXPECT_EQ(inSection(0), (std::vector<std::string>{"grp", "optA"}));
}

TEST_F(NestedControlsTest, CollectionStaysUsableAcrossChanges) {
  openRecording(kGroup);
  const ObjectRef form = openForm("f");
  const ObjectRef inside = child(control(form, "grp"), "Controls");
  const ObjectRef all = child(form, "Controls");
  for (int i = 0; i < 5; ++i) control(form, "optA")->put("Section", i);
  EXPECT_EQ(names(inside), (std::vector<std::string>{"optA", "optB"}));
  EXPECT_EQ(number(all, "Count"), 3);
  EXPECT_EQ(number(item(inside, 0), "Section"), 4);
}

}  // namespace
}  // namespace tarrowin
