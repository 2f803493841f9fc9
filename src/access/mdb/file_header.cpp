// Unmasks page 0 and takes it apart.
// The mask is RC4 with one key for all files: it hides nothing, it only looks that way.
#include "access/mdb/file_header.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "access/mdb/byte_view.h"
#include "access/mdb/damage.h"
#include "access/mdb/rc4.h"
#include "shared/value.h"

namespace tarrowin::mdb {
namespace {

constexpr std::string_view kJetSignature = "Standard Jet DB";
constexpr std::string_view kAceSignature = "Standard ACE DB";  // Access 2007 and later
constexpr std::size_t kSignature = 0x04;
constexpr std::size_t kVersion = 0x14;
constexpr std::size_t kMaskStart = 0x18;
constexpr std::array<std::uint8_t, 4> kMaskKey{0xC7, 0xDA, 0x39, 0x6B};

// In the unmasked page.
constexpr std::size_t kLanguageJet3 = 0x3A;
constexpr std::size_t kCodePage = 0x3C;
constexpr std::size_t kPageKey = 0x3E;
constexpr std::size_t kPassword = 0x42;
constexpr std::size_t kPasswordSizeJet3 = 20;
constexpr std::size_t kPasswordSizeJet4 = 40;
constexpr std::size_t kLanguageJet4 = 0x6E;
constexpr std::size_t kCreated = 0x72;
constexpr std::size_t kHeaderSize = 0x18 + 128;

bool startsAt(std::span<const std::uint8_t> file, std::size_t at, std::string_view text) {
  return file.size() >= at + text.size() &&
         std::equal(text.begin(), text.end(), file.begin() + static_cast<std::ptrdiff_t>(at),
                    [](char c, std::uint8_t byte) { return static_cast<std::uint8_t>(c) == byte; });
}

// The double as a C cast would cut it, without its undefined cases.
std::uint32_t truncated(double days) {
  if (!(days > -2147483649.0 && days < 2147483648.0)) return 0;
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(days));
}

// Jet 3 keeps the password itself, Jet 4 mixed with the day of the file's creation. All zero =
// none.
bool hasPassword(const ByteView& page, bool jet3) {
  if (jet3) {
    auto bytes = page.sub(kPassword, kPasswordSizeJet3).bytes();
    return std::any_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte != 0; });
  }
  std::uint32_t key = truncated(page.f64(kCreated));
  for (std::size_t at = 0; at < kPasswordSizeJet4; at += sizeof key) {
    if (page.u32(kPassword + at) != key) return true;
  }
  return false;
}

}  // namespace

FileHeader readFileHeader(std::span<const std::uint8_t> file) {
  bool jet = startsAt(file, kSignature, kJetSignature);
  bool ace = startsAt(file, kSignature, kAceSignature);
  if (!jet && !ace) throw Error(ErrorKind::kNotADatabase, "the file is not an Access database");
  if (file.size() < kHeaderSize) raiseDamaged("the file ends within its header");
  Bytes unmasked(file.begin(), file.begin() + kHeaderSize);
  FileHeader header;
  header.versionByte = unmasked[kVersion];
  if (ace) header.versionByte = std::max(header.versionByte, 2);
  header.format = header.versionByte == 0 ? &kJet3 : &kJet4;
  applyRc4(kMaskKey, std::span(unmasked).subspan(kMaskStart, header.format->maskedHeader));
  ByteView page(unmasked, Place{"the file header", 0});
  header.languageId = page.u16(header.format->jet3 ? kLanguageJet3 : kLanguageJet4);
  header.codePage = page.u16(kCodePage);
  header.pageKey = page.u32(kPageKey);
  header.hasPassword = hasPassword(page, header.format->jet3);
  return header;
}

}  // namespace tarrowin::mdb
