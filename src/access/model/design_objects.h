// Forms, reports and what stands on them, open in design view.
#pragma once

#include <memory>
#include <vector>

#include "access/model/design_errors.h"
#include "access/model/model_object.h"

namespace tarrowin {

// Some of the controls as the source of a collection. An index past the end raises pastEnd, a name
// that is not there the other number.
class ControlSource {
 public:
  ControlSource(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                ControlList controls, std::int32_t pastEnd, std::int32_t missing);

  std::size_t count() const { return controls_->size(); }
  ObjectRef item(std::size_t index) const;
  std::size_t find(std::string_view name) const;
  [[noreturn]] void missingName(std::string_view name) const;
  [[noreturn]] void missingIndex(std::int32_t index) const;

 private:
  std::shared_ptr<Session> session_;
  std::shared_ptr<OpenDesign> open_;
  ControlList controls_;
  std::int32_t pastEnd_, missing_;
};

// An object of an open form or report. Once that is closed, every use raises 2467.
class DesignObject : public SessionObject {
 protected:
  DesignObject(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open)
      : SessionObject(std::move(session)), open_(std::move(open)) {}

  const NameTable& names() const final;
  // Raises what tryRead gives as an error: objects answer there alone.
  Value read(const MemberUse& use) final;
  Reading tryRead(const MemberUse& use) override = 0;

  // What a member gives that is a collection: itself, or with an argument one of its items.
  template <class Source>
  Value collectionOrItem(const Source& source, const MemberUse& use) const;
  // Some of the design's controls.
  ControlSource controlSource(ControlList controls, std::int32_t pastEnd = design_error::kNoField,
                              std::int32_t missing = design_error::kNoField) const;
  const DesignModel& design() const { return open_->design(); }
  const DesignBody& body() const { return open_->body(); }
  OpenDesign& open() const { return *open_; }
  const std::shared_ptr<OpenDesign>& openRef() const { return open_; }

 private:
  std::shared_ptr<OpenDesign> open_;
};

// A design object with properties.
class PropertyOwner : public DesignObject {
 protected:
  using DesignObject::DesignObject;

  // As they look now.
  virtual const PropertyBag& properties() const = 0;
  // The members that Properties has in front of them.
  virtual std::vector<Member> derivedProperties() const { return {}; }
  // What Properties gives: its members are read and written as the object's own.
  Value propertiesOrItem(const MemberUse& use);

 private:
  friend class PropertySource;
};

// The properties of an owner as the source of a collection: 2455 for a name that is not
// there, 2480 for an index.
class PropertySource {
 public:
  explicit PropertySource(std::shared_ptr<PropertyOwner> owner);

  std::size_t count() const;
  ObjectRef item(std::size_t index) const;
  std::size_t find(std::string_view name) const;
  [[noreturn]] void missingName(std::string_view name) const;
  [[noreturn]] void missingIndex(std::int32_t index) const;

 private:
  std::shared_ptr<PropertyOwner> owner_;
};

// A collection that is alive as long as the form or report is open.
ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               CollectionSource source);
ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               ControlSource source);
ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               PropertySource source);

template <class Source>
Value DesignObject::collectionOrItem(const Source& source, const MemberUse& use) const {
  if (!use.arguments.empty()) return collectionItem(source, use.argument(0));
  return makeDesignCollection(sessionRef(), openRef(), source);
}

// Form or Report: its properties; Controls, Section(n), GroupLevel(n), Properties, HasModule,
// Module, Count, Parent (raises 2452); the default member is a control by name or index.
ObjectRef makeDesign(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open);

// Section at a position of the list: its properties, Controls, Parent, Properties. A member that it
// lacks raises 438, as with controls and group levels.
ObjectRef makeSection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                      std::size_t section);

// Control at a position of the list: its properties, Name, ControlType, Parent, Controls, Pages,
// Form, Report, Properties.
ObjectRef makeControl(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                      std::size_t control);

ObjectRef makeGroupLevel(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                         std::size_t level);

}  // namespace tarrowin
