// Walks the expectation and looks each part up.
#include "cli/expected_database.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tarrowin::test {

namespace {

using Json = nlohmann::json;

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// The entries of a list of the database with that value under the key.
std::vector<Json> entriesWith(const Json& list, const std::string& key, const Json& value) {
  std::vector<Json> found;
  for (const Json& entry : list) {
    if (entry.contains(key) && entry[key] == value) found.push_back(entry);
  }
  return found;
}

void expectProperties(const Json& expected, const Json& owner) {
  const Json properties = owner.value("properties", Json::object());
  for (const auto& [name, value] : expected.items()) {
    bool found = false;
    for (const auto& [recordedName, recorded] : properties.items()) {
      if (lowered(recordedName) != lowered(name)) continue;
      found = true;
      EXPECT_EQ(recorded, value) << "property " << name;
    }
    EXPECT_TRUE(found) << "there is no property " << name;
  }
}

void expectSections(const Json& expected, const Json& form) {
  for (const Json& section : expected) {
    SCOPED_TRACE("section " + section["number"].dump());
    const auto found =
        entriesWith(form.value("sections", Json::array()), "number", section["number"]);
    ASSERT_EQ(found.size(), 1u);
    expectProperties(section.value("properties", Json::object()), found.front());
  }
}

void expectControl(const Json& expected, const Json& control) {
  SCOPED_TRACE("control " + expected["name"].get<std::string>());
  if (expected.contains("type")) {
    EXPECT_EQ(control.value("type", Json()), expected["type"]);
  }
  if (expected.contains("parent")) {
    const std::string parent = expected["parent"].is_null() ? "" : expected["parent"];
    EXPECT_EQ(control.value("parent", ""), parent);
  }
  expectProperties(expected.value("properties", Json::object()), control);
}

std::vector<std::string> namesOf(const Json& list) {
  std::vector<std::string> names;
  for (const Json& entry : list) names.push_back(entry["name"]);
  return names;
}

void expectControls(const Json& expected, const Json& form) {
  const Json controls = form.value("controls", Json::array());
  ASSERT_EQ(namesOf(controls), namesOf(expected));
  for (std::size_t i = 0; i < expected.size(); ++i) expectControl(expected[i], controls[i]);
}

void expectForm(const Json& expected, const Json& form) {
  if (expected.contains("properties")) expectProperties(expected["properties"], form);
  if (expected.contains("sections")) expectSections(expected["sections"], form);
  if (expected.contains("controls")) expectControls(expected["controls"], form);
  if (expected.contains("module")) {
    EXPECT_EQ(form.value("module", Json()), expected["module"]);
  }
}

// Looks up what is named in a list of the database; with null nothing may have the name.
template <class Check>
void expectNamed(const Json& expected, const Json& list, Check check) {
  for (const auto& [name, entry] : expected.items()) {
    SCOPED_TRACE(name);
    const auto found = entriesWith(list, "name", name);
    ASSERT_EQ(found.size(), entry.is_null() ? 0u : 1u);
    if (!entry.is_null()) check(entry, found.front());
  }
}

}  // namespace

void expectDatabase(const Json& expected, const Json& database) {
  expectNamed(expected.value("forms", Json::object()), database.value("forms", Json::array()),
              expectForm);
  expectNamed(expected.value("modules", Json::object()), database.value("modules", Json::array()),
              [](const Json& text, const Json& module) { EXPECT_EQ(module["text"], text); });
}

}  // namespace tarrowin::test
