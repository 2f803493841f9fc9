// The model of open forms as the form conversion reads it: properties and chains of Parents, and
// the controls inside option groups and tab pages. Figures are of one core.
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "access/access_host.h"
#include "core/access_object.h"

namespace tarrowin {
namespace {

constexpr int kTextBox = 109, kOptionGroup = 107, kTabControl = 123, kPage = 124;

// What the generator of a text box reads, and some that most controls have besides.
const std::vector<std::string> kRead = {
    "Visible",     "Section",     "Top",       "Left",         "Width",
    "Height",      "BackStyle",   "BackColor", "ForeColor",    "BorderStyle",
    "BorderColor", "BorderWidth", "FontName",  "FontSize",     "FontWeight",
    "FontItalic",  "TextAlign",   "TabIndex",  "TabStop",      "ControlSource",
    "Format",      "Enabled",     "Locked",    "DefaultValue", "ControlTipText",
};
const std::vector<std::string> kOthers = {
    "EventProcPrefix",  "StatusBarText", "EnterKeyBehavior",
    "AllowAutoCorrect", "DisplayWhen",   "ScrollBars",
    "CanGrow",          "CanShrink",     "SpecialEffect",
    "ShortcutMenuBar",  "HelpContextId", "AutoTab",
    "OldBorderStyle",   "BeforeUpdate",  "AfterUpdate",
    "OnChange",         "OnEnter",       "OnExit",
    "OnGotFocus",       "OnLostFocus",   "OnClick",
    "OnDblClick",       "OnMouseDown",   "OnMouseMove",
    "OnMouseUp",        "OnKeyDown",     "OnKeyUp",
    "OnKeyPress",       "Tag",           "InputMask",
};

// Numbers, and texts short and long, in the order of a recording: the others come between.
std::string properties() {
  std::string json = "{";
  for (std::size_t i = 0; i < kOthers.size(); ++i) {
    json += "\"" + kOthers[i] + "\":\"\",";
    if (i >= kRead.size()) continue;
    const std::string& name = kRead[i];
    const bool isText = name == "FontName" || name == "ControlSource" || name == "Format" ||
                        name == "DefaultValue" || name == "ControlTipText";
    json += "\"" + name + "\":";
    json += name == "ControlTipText" ? "\"The day on which it left the house\""
            : isText                 ? "\"MS Sans Serif\""
                                     : std::to_string(i * 15);
    json += ",";
  }
  json.back() = '}';
  return json;
}

std::string control(std::size_t number, int type, std::size_t parent) {
  std::string json =
      "{\"name\":\"Control" + std::to_string(number) + "\",\"type\":" + std::to_string(type) + ",";
  if (parent != SIZE_MAX) json += "\"parent\":\"Control" + std::to_string(parent) + "\",";
  return json + "\"properties\":" + properties() + "}";
}

// Opens the only form of a recording with these controls.
class OneForm {
 public:
  explicit OneForm(const std::vector<std::string>& controls)
      : path_((std::filesystem::temp_directory_path() / "tarrowin-bench-model.access.json")
                  .string()) {
    std::ofstream file(path_);
    file << R"({"snapshot":1,"forms":[{"name":"frmMain","properties":{"Caption":"Main"},)"
         << R"("sections":[{"number":0,"properties":{"Name":"Detail"}}],"controls":[)";
    for (std::size_t i = 0; i < controls.size(); ++i) file << (i ? "," : "") << controls[i];
    file << "]}]}";
    file.close();
    host_ = createAccessHost();
    application_ = toObject(call(host_, "CreateObject", {"Access.Application"}));
    call(application_, "OpenCurrentDatabase", {path_, true});
    call(toObject(application_->get("DoCmd")), "OpenForm", {"frmMain", 1});
    const Value name("frmMain");
    form_ = toObject(application_->get("Forms", {&name, 1}));
  }
  ~OneForm() { std::filesystem::remove(path_); }

  const ObjectRef& form() const { return form_; }

 private:
  static Value call(const ObjectRef& object, std::string_view name,
                    std::initializer_list<Value> arguments) {
    return object->call(name, {arguments.begin(), arguments.size()});
  }

  std::string path_;
  ObjectRef host_, application_, form_;
};

ObjectRef item(const ObjectRef& collection, std::int32_t index) {
  const Value which(index);
  return toObject(collection->get("", {&which, 1}));
}

// For Each: every item, in order.
template <class Action>
void forEach(const ObjectRef& collection, Action action) {
  const std::int32_t count = toLong(collection->get("Count"));
  for (std::int32_t i = 0; i < count; ++i) action(item(collection, i));
}

void readChain(const ObjectRef& ctl) {
  ObjectRef below = ctl;
  for (int link = 0; link < 3; ++link) {
    const Reading parent = below->tryGet("Parent");
    if (parent.error) return;
    below = parent.value.object();
    for (const std::string_view member : {"ControlType", "Top", "Left", "Name"})
      benchmark::DoNotOptimize(below->tryGet(member));
  }
}

// The controls of a form of 50: on the form itself, or inside a chain of as many others.
void readControls(benchmark::State& state) {
  constexpr std::size_t kControls = 50;
  const auto depth = static_cast<std::size_t>(state.range(0));
  std::vector<std::string> list;
  for (std::size_t i = 0; i < kControls; ++i) {
    const std::size_t parent = depth == 0 ? SIZE_MAX : std::min(i, depth) - 1;
    list.push_back(control(i, kTextBox, parent));
  }
  const OneForm opened(list);
  for (auto _ : state) {
    forEach(toObject(opened.form()->get("Controls")), [](const ObjectRef& ctl) {
      for (const std::string& name : kRead) benchmark::DoNotOptimize(ctl->get(name));
      readChain(ctl);
    });
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kControls));
}
BENCHMARK(readControls)->ArgName("depth")->Arg(0)->Arg(1)->Arg(3);

// The parts of the above.
void readProperties(benchmark::State& state) {
  const OneForm opened({control(0, kTextBox, SIZE_MAX)});
  const ObjectRef ctl = item(toObject(opened.form()->get("Controls")), 0);
  for (auto _ : state)
    for (const std::string& name : kRead) benchmark::DoNotOptimize(ctl->get(name));
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kRead.size()));
}
BENCHMARK(readProperties);

void readMissing(benchmark::State& state) {
  const OneForm opened({control(0, kTextBox, SIZE_MAX)});
  for (auto _ : state) benchmark::DoNotOptimize(opened.form()->tryGet("ControlType"));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(readMissing);

void makeItems(benchmark::State& state) {
  const OneForm opened({control(0, kTextBox, SIZE_MAX)});
  const ObjectRef controls = toObject(opened.form()->get("Controls"));
  for (auto _ : state) benchmark::DoNotOptimize(item(controls, 0));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(makeItems);

// A form with that many controls, twenty to a holder: option groups, or the pages of tab controls
// of ten pages. Walks the form, each holder and its controls, once more by the holder's own index.
void walkHolders(benchmark::State& state) {
  constexpr std::size_t kPerHolder = 20, kPagesPerTab = 10;
  const auto controls = static_cast<std::size_t>(state.range(0));
  const bool pages = state.range(1) != 0;
  std::vector<std::string> list;
  std::size_t holders = 0, tab = SIZE_MAX;
  while (list.size() < controls) {
    if (pages && holders % kPagesPerTab == 0) {
      tab = list.size();
      list.push_back(control(tab, kTabControl, SIZE_MAX));
    }
    const std::size_t holder = list.size();
    ++holders;
    list.push_back(control(holder, pages ? kPage : kOptionGroup, tab));
    for (std::size_t i = 1; i < kPerHolder && list.size() < controls; ++i)
      list.push_back(control(list.size(), kTextBox, holder));
  }
  const OneForm opened(list);
  std::size_t seen = 0;
  const auto walk = [&seen](const ObjectRef& holder) {
    const ObjectRef inside = toObject(holder->get("Controls"));
    forEach(inside, [&seen](const ObjectRef& ctl) { seen += ctl->get("Name").text()->size(); });
    const std::int32_t count = toLong(inside->get("Count"));
    for (std::int32_t i = 0; i < count; ++i) {
      const Value which(i);
      seen += toObject(holder->get("Controls", {&which, 1}))->get("Name").text()->size();
    }
  };
  for (auto _ : state) {
    forEach(toObject(opened.form()->get("Controls")), [&](const ObjectRef& ctl) {
      const std::int32_t type = toLong(ctl->get("ControlType"));
      if (type == kOptionGroup) walk(ctl);
      if (type == kTabControl) forEach(toObject(ctl->get("Pages")), walk);
    });
  }
  benchmark::DoNotOptimize(seen);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(list.size()));
}
BENCHMARK(walkHolders)
    ->ArgNames({"controls", "pages"})
    ->ArgsProduct({{1000, 10000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarrowin

BENCHMARK_MAIN();
