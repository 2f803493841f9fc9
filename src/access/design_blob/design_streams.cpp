// The stream "Blob" of an object's folder, and whether there is code behind the object.
// See design_streams.h. A stream "BlobDelta" beside it, with what Access 2002 and later added to a
// design of Access 2000, holds nothing that is wanted.
#include "access/design_blob/design_streams.h"

#include "access/design_blob/design_blob.h"
#include "access/mdb/damage.h"

namespace tarrowin {

StoredDesign readStoredDesign(const vba::ObjectTree& objects, vba::Container container,
                              std::string_view name, const Lazy<CodePage>& ansi,
                              const CodePage& codePage) {
  const vba::StoredObject* const stored = objects.find(container, name);
  const Bytes blob = stored ? objects.stream(*stored, "Blob").value_or(Bytes()) : Bytes();
  if (blob.empty()) mdb::raiseDamaged("the file does not hold it");
  StoredDesign design = readDesignBlob(blob, hasAnsiTexts(blob) ? ansi.get() : codePage, codePage);
  design.hasModule = objects.hasModule(container, name);
  return design;
}

}  // namespace tarrowin
