// The file as a row of pages. Encoded pages are decoded when first asked for.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "access/mdb/byte_view.h"
#include "access/mdb/file_header.h"
#include "access/mdb/file_image.h"

namespace tarrowin::mdb {

class PageFile {
 public:
  // The header is that of the image.
  PageFile(FileImage image, const FileHeader& header);

  const JetFormat& format() const { return *header_.format; }
  const FileHeader& header() const { return header_; }
  std::size_t fileSize() const { return image_.bytes().size(); }
  // Whole pages; what a cut file holds of its last page does not count.
  std::uint32_t pageCount() const { return pageCount_; }

  // The page; the view lives as long as this object. Throws Error (kDamaged) for a page beyond the
  // end of the file.
  ByteView page(std::uint32_t number) const;
  // The same, which must be a page of the type.
  ByteView page(std::uint32_t number, std::uint8_t type) const;

  // To be called before a walk over pages; see FileImage.
  void checkStillThere() const { image_.checkStillThere(); }

 private:
  std::span<const std::uint8_t> decoded(std::uint32_t number,
                                        std::span<const std::uint8_t> stored) const;

  FileImage image_;
  FileHeader header_;
  std::uint32_t pageCount_;
  mutable std::vector<std::unique_ptr<std::uint8_t[]>> decoded_;  // by page; encoded files only
};

}  // namespace tarrowin::mdb
