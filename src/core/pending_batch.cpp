// One driver for the kinds without a generator.
#include "core/pending_batch.h"

#include "core/batch_driver.h"

namespace tarrowin {

namespace {

class PendingBatch : public BatchDriver {
 public:
  PendingBatch(MainObject& main, ObjectList list) : BatchDriver(main, batchMember(list)) {}

 protected:
  void resetLists() override {}
  void convertSelection() override {}
  std::string summary() override {
    return "This version of Tarrowin cannot convert " + std::string(member_.words) + " yet.";
  }
};

}  // namespace

void ConvertMacros(MainObject& main, bool blnAll) {
  PendingBatch(main, ObjectList::kMacros).run(blnAll);
}
void ConvertObjects(MainObject& main, bool blnAll) {
  PendingBatch(main, ObjectList::kObjects).run(blnAll);
}

}  // namespace tarrowin
