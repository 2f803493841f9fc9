// The RC4 stream cipher, with which Jet masks the file header and encodes the pages of an encoded
// database.
#pragma once

#include <cstdint>
#include <span>

namespace tarrowin::mdb {

// Encrypts or decrypts in place; the same operation does both.
void applyRc4(std::span<const std::uint8_t> key, std::span<std::uint8_t> data);

}  // namespace tarrowin::mdb
