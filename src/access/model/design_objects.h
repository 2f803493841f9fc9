// Forms, reports and what stands on them, open in design view.
#pragma once

#include <memory>

#include "access/model/model_object.h"

namespace tarrowin {

// An object of an open form or report. Once that is closed, every use raises 2467.
class DesignObject : public SessionObject {
 protected:
  DesignObject(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open)
      : SessionObject(std::move(session)), open_(std::move(open)) {}

  const NameTable& names() const final;
  const DesignModel& design() const { return open_->design(); }
  OpenDesign& open() const { return *open_; }
  const std::shared_ptr<OpenDesign>& openRef() const { return open_; }

 private:
  std::shared_ptr<OpenDesign> open_;
};

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

// A collection that is alive as long as the form or report is open.
ObjectRef makeDesignCollection(std::shared_ptr<Session> session, std::shared_ptr<OpenDesign> open,
                               CollectionSource source);

// The controls at these positions as a collection. An index past the end raises pastEnd, a
// name that is not there 2465.
CollectionSource controlCollection(std::shared_ptr<Session> session,
                                   std::shared_ptr<OpenDesign> open,
                                   std::vector<std::size_t> positions, std::int32_t pastEnd);

// Properties by name or 0-based index, each with Name and Value: 2455 for a name that is not
// there, 2480 for an index. The list goes by value since a change of the design moves it.
CollectionSource propertyCollection(std::shared_ptr<Session> session,
                                    std::shared_ptr<const PropertyBag> properties);

}  // namespace tarrowin
