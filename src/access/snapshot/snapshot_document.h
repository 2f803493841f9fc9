// A recording as a JSON document, with every key that stands in it: what is written, and what is
// changed when the database changes.
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "access/snapshot/atomic_file.h"

namespace tarrowin {

// Parses the text of a recording, keys in their order. Throws SnapshotError as the reader does for
// what is not JSON, is nested too deeply or has too many values.
nlohmann::ordered_json parseSnapshotDocument(std::string_view utf8);

// The document as text: indented by two blanks, ended by a line feed. Bytes that are not UTF-8
// become the replacement character.
std::string snapshotText(const nlohmann::ordered_json& document);

// Writes the text in place of the file, atomically. Throws AtomicWriteError.
void writeSnapshotFile(const std::string& path, const nlohmann::ordered_json& document,
                       ReplaceOperations& operations);
void writeSnapshotFile(const std::string& path, const nlohmann::ordered_json& document);

}  // namespace tarrowin
