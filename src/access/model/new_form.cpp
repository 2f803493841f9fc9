// The name, the properties and the sections of a new form.
#include "access/model/new_form.h"

#include <algorithm>
#include <utility>

#include "access/model/control_defaults.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrNoForm = 2102;
constexpr std::string_view kNameStem = "Form";
constexpr const char* kDetailName = "Detail";

std::string freeName(const Session& session) {
  const DatabaseModel& database = session.model();
  const auto isTaken = [&](std::string_view name) {
    return database.forms.find(name, database.folding) ||
           std::ranges::any_of(session.openForms, [&](const auto& open) {
             return database.folding.equal(open->source()->name, name);
           });
  };
  for (int number = 1;; ++number)
    if (std::string name = std::string(kNameStem) + std::to_string(number); !isTaken(name))
      return name;
}

PropertyBag defaultProperties(std::int32_t object, const std::string& name, NameTable& names) {
  PropertyBag properties;
  for (const PropertyDefault& row : defaultsOf(object))
    properties.set(names, names.intern(row.name), initialValue(row, name));
  return properties;
}

// The template without what belongs to it alone.
std::unique_ptr<DesignModel> fromTemplate(const DatabaseModel& database, const std::string& name) {
  const DesignModel* source = database.forms.find(name, database.folding);
  if (!source) raise(kErrNoForm, name);
  if (source->openError) source->openError->raise(source->name);
  auto form = std::make_unique<DesignModel>();
  const auto held = source->body.get();
  const DesignBody& body = *held;
  DesignBody copied;
  copied.properties = body.properties;
  copied.sections = body.sections;
  form->body = std::move(copied);
  return form;
}

std::unique_ptr<DesignModel> fromDefaults(NameTable& names, const std::string& name) {
  auto form = std::make_unique<DesignModel>();
  DesignBody body;
  body.properties = defaultProperties(kFormObject, name, names);
  body.sections.push_back({0, defaultProperties(kSectionObject, kDetailName, names)});
  form->body = std::move(body);
  return form;
}

void setIfThere(PropertyBag& properties, const NameTable& names, Member member, Value value) {
  const NameId key = static_cast<NameId>(member);
  if (properties.valueOf(key)) properties.set(names, key, std::move(value));
}

}  // namespace

std::shared_ptr<OpenDesign> createForm(Session& session, const std::string& templateName) {
  NameTable& names = session.tree().names;
  const std::string name = freeName(session);
  auto form = templateName.empty() ? fromDefaults(names, name)
                                   : fromTemplate(session.model(), templateName);
  form->name = name;
  PropertyBag& properties = form->body.edit().properties;
  setIfThere(properties, names, Member::kName, name);
  setIfThere(properties, names, Member::kFormName, name);
  setIfThere(properties, names, Member::kHasModule, false);
  auto open = std::make_shared<OpenDesign>(std::move(form), templateName);
  session.openForms.push_back(open);
  return open;
}

}  // namespace tarrowin
