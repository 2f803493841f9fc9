// Both sources are open at once, and of each object only what is compared is in memory.
#include "cli/compare_command.h"

#include <array>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "access/model/case_folding.h"
#include "cli/compared_source.h"
#include "cli/console.h"
#include "cli/json_text.h"
#include "cli/object_difference.h"

namespace tarrowin {

namespace {

struct NamedKind {
  FactKind kind;
  std::string_view name;
};

constexpr std::array<NamedKind, 7> kKinds = {{{FactKind::kTable, "table"},
                                              {FactKind::kRelation, "relation"},
                                              {FactKind::kQuery, "query"},
                                              {FactKind::kForm, "form"},
                                              {FactKind::kReport, "report"},
                                              {FactKind::kMacro, "macro"},
                                              {FactKind::kModule, "module"}}};

struct Counts {
  std::size_t alike = 0, different = 0, onlyFirst = 0, onlySecond = 0;
};

// Tells what is found as it is found.
class Report {
 public:
  virtual ~Report() = default;
  virtual void different(std::string_view kind, const std::string& name,
                         const std::vector<Difference>& differences) = 0;
  virtual void onlyIn(std::string_view kind, const std::string& name, bool first) = 0;
  virtual void end(const Counts& counts) = 0;
};

class ReportForPerson : public Report {
 public:
  ReportForPerson(Console& console, const std::string& first, const std::string& second)
      : console_(console) {
    console_.print("A: " + first + "\nB: " + second + "\n");
  }

  void different(std::string_view kind, const std::string& name,
                 const std::vector<Difference>& differences) override {
    console_.print("\n" + std::string(kind) + " " + name + "\n");
    std::string part;
    for (const Difference& difference : differences) {
      if (difference.property.empty()) {
        console_.print("  " + difference.part + ": only in " + (difference.first ? "A" : "B") +
                       "\n");
        continue;
      }
      if (difference.part != part) console_.print("  " + difference.part + "\n");
      part = difference.part;
      const auto [left, right] = shownValues(difference);
      console_.print((part.empty() ? "  " : "    ") + difference.property + ": " + left + " | " +
                     right + "\n");
    }
  }

  void onlyIn(std::string_view kind, const std::string& name, bool first) override {
    console_.print("\n" + std::string(kind) + " " + name + ": only in " + (first ? "A" : "B") +
                   "\n");
  }

  void end(const Counts& counts) override {
    console_.print("\nObjects: " + std::to_string(counts.alike) + " alike, " +
                   std::to_string(counts.different) + " different, " +
                   std::to_string(counts.onlyFirst) + " only in A, " +
                   std::to_string(counts.onlySecond) + " only in B\n");
  }

 private:
  Console& console_;
};

class ReportForProgram : public Report {
 public:
  ReportForProgram(Console& console, const std::string& first, const std::string& second)
      : console_(console) {
    answer_["first"] = first;
    answer_["second"] = second;
    answer_["objects"] = Json::array();
  }

  void different(std::string_view kind, const std::string& name,
                 const std::vector<Difference>& differences) override {
    Json list = Json::array();
    for (const Difference& difference : differences) {
      Json entry = Json::object();
      if (!difference.part.empty()) entry["part"] = difference.part;
      if (difference.property.empty()) {
        entry["onlyIn"] = difference.first ? "first" : "second";
      } else {
        entry["property"] = difference.property;
        if (difference.first) entry["first"] = *difference.first;
        if (difference.second) entry["second"] = *difference.second;
      }
      list.push_back(std::move(entry));
    }
    answer_["objects"].push_back(
        {{"kind", kind}, {"name", name}, {"differences", std::move(list)}});
  }

  void onlyIn(std::string_view kind, const std::string& name, bool first) override {
    answer_["objects"].push_back(
        {{"kind", kind}, {"name", name}, {"onlyIn", first ? "first" : "second"}});
  }

  void end(const Counts& counts) override {
    answer_["alike"] = counts.alike;
    answer_["different"] = counts.different;
    answer_["onlyInFirst"] = counts.onlyFirst;
    answer_["onlyInSecond"] = counts.onlySecond;
    console_.print(jsonText(answer_, 2) + "\n");
  }

 private:
  Console& console_;
  Json answer_;
};

void compareKind(const NamedKind& kind, ComparedSource& first, ComparedSource& second,
                 ComparedProperties compared, Report& report, Counts& counts) {
  // The choice of properties is one of designs.
  if (kind.kind != FactKind::kForm && kind.kind != FactKind::kReport)
    compared = ComparedProperties::kAll;
  const CaseFolding folding{CodePage(CodePage::kUtf8)};
  std::unordered_map<std::string, std::string> others;
  const std::vector<std::string> secondNames = second.names(kind.kind);
  for (const std::string& name : secondNames) others.emplace(folding.fold(name), name);
  for (const std::string& name : first.names(kind.kind)) {
    const auto other = others.find(folding.fold(name));
    if (other == others.end()) {
      ++counts.onlyFirst;
      report.onlyIn(kind.name, name, true);
      continue;
    }
    const std::vector<Difference> differences = differencesBetween(
        first.facts(kind.kind, name), second.facts(kind.kind, other->second), compared);
    others.erase(other);
    ++(differences.empty() ? counts.alike : counts.different);
    if (!differences.empty()) report.different(kind.name, name, differences);
  }
  for (const std::string& name : secondNames) {
    const auto left = others.find(folding.fold(name));
    if (left == others.end() || left->second != name) continue;
    ++counts.onlySecond;
    report.onlyIn(kind.name, name, false);
  }
}

}  // namespace

ExitStatus compareSources(const Environment& environment, const CompareOptions& options) {
  ComparedSource first(environment, options.first), second(environment, options.second);
  std::unique_ptr<Report> report;
  if (options.json)
    report = std::make_unique<ReportForProgram>(environment.console, first.path(), second.path());
  else
    report = std::make_unique<ReportForPerson>(environment.console, first.path(), second.path());
  const auto compared =
      options.generatorsOnly ? ComparedProperties::kGenerators : ComparedProperties::kAll;
  Counts counts;
  for (const NamedKind& kind : kKinds) compareKind(kind, first, second, compared, *report, counts);
  report->end(counts);
  const bool same = counts.different + counts.onlyFirst + counts.onlySecond == 0;
  return same ? ExitStatus::kDone : ExitStatus::kDiffers;
}

}  // namespace tarrowin
