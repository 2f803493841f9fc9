// A reader of designs and what fails in it.
#include "access/designs/lazy_design.h"

#include <exception>
#include <new>
#include <utility>

#include "access/designs/design_completion.h"

namespace tarrowin {

namespace {

// Access refused to open an object: the only number for which the conversions leave it alone.
constexpr std::int32_t kErrRefused = 2601;

std::string_view wordFor(DesignKind kind) { return kind == DesignKind::kForm ? "form" : "report"; }

std::string_view blockOf(DesignKind kind) { return kind == DesignKind::kForm ? "Form" : "Report"; }

StoredDesign readOfKind(DesignKind kind, const std::function<StoredDesign()>& read) {
  StoredDesign stored = read();
  if (stored.root.kind != blockOf(kind))
    throw VbError(kErrRefused, "Its design is not that of a " + std::string(wordFor(kind)) + ".");
  return stored;
}

// The reason why the reader failed, in the program's code page.
std::string reasonOfCurrentFailure(const CodePage& codePage) {
  try {
    throw;
  } catch (const VbError& error) {
    return error.description();
  } catch (const std::bad_alloc&) {
    return "There is not enough memory.";
  } catch (const std::exception& error) {
    return codePage.fromUtf8(error.what());
  }
}

}  // namespace

RecordedError cannotOpenDesign(DesignKind kind, const std::string& name,
                               const std::string& reason) {
  std::string text =
      "Microsoft Access can't open the " + std::string(wordFor(kind)) + " '" + name + "'.";
  if (!reason.empty()) text += " " + reason;
  return {kErrRefused, std::move(text)};
}

DesignModel lazyDesign(DatabaseModel& database, std::string name, DesignKind kind,
                       std::function<StoredDesign()> read) {
  DesignModel design;
  design.name = name;
  design.body =
      LazyBody<DesignBody>([&database, name = std::move(name), kind, read = std::move(read)] {
        try {
          return completeDesign(readOfKind(kind, read), name, database.names);
        } catch (...) {
          cannotOpenDesign(kind, name, reasonOfCurrentFailure(database.codePage)).raise(name);
        }
      });
  return design;
}

}  // namespace tarrowin
