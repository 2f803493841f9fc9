// Reads the rows of a macro's sheet for recordings.
// See macro_document.h.
#include "access/model/macro_document.h"

#include <utility>

namespace tarrowin {

namespace {

constexpr std::size_t kFirstArgument = 4;  // the column

Value textAt(const MacroAction& row, std::size_t column) {
  switch (column) {
    case 0:
      return row.macroName;
    case 1:
      return row.condition;
    case 2:
      return row.action;
    case 3:
      return row.comment;
    default:
      column -= kFirstArgument;
      return column < row.arguments.size() ? Value(row.arguments[column]) : Value();
  }
}

class MacroDocument : public SessionObject {
 public:
  MacroDocument(std::shared_ptr<Session> session, std::size_t macro)
      : SessionObject(std::move(session)), macro_(macro) {}

 protected:
  Value read(const MemberUse& use) override {
    if (use.member() == Member::kName) return self().name;
    if (model().folding.equal(use.name, "RowCount"))
      return static_cast<std::int32_t>(rows().size());
    if (model().folding.equal(use.name, "RowText"))
      return textOf(toLong(use.argument(0)), toLong(use.argument(1)));
    raise(kErrNoSuchMember, use.name);
  }

 private:
  const MacroModel& self() const { return model().macros[macro_]; }

  const std::vector<MacroAction>& rows() const {
    if (self().openError) self().openError->raise(self().name);
    return self().actions.get();
  }

  Value textOf(std::int32_t row, std::int32_t column) const {
    if (row < 0 || column < 0 || static_cast<std::size_t>(row) >= rows().size())
      raise(kErrSubscript);
    return textAt(rows()[static_cast<std::size_t>(row)], static_cast<std::size_t>(column));
  }

  std::size_t macro_;
};

}  // namespace

ObjectRef makeMacroDocument(std::shared_ptr<Session> session, std::size_t macro) {
  return std::make_shared<MacroDocument>(std::move(session), macro);
}

}  // namespace tarrowin
