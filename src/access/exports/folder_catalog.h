// What lies where in a folder of exported objects, whatever tool made it. Only the head of each
// file is read.
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "access/exports/file_nature.h"

namespace tarrowin::exports {

// All names and paths are in UTF-8, as the disk has them.
struct ExportedFile {
  std::string name;  // of the object
  std::string path;
  FileHead head;
  std::string codePath;  // of a design whose code has a file of its own
};

struct ExportedTable {
  std::string name;
  // The same table in different forms; empty where there is none.
  std::string schemaPath, statementPath, linkPath, rowsPath;
};

// Files of which each folder has one.
struct SystemFiles {
  std::string databaseProperties, project, references;  // JSON
  std::string referenceList;                            // lines of id, major, minor
  std::string propertyTable, referenceTable, relationTable, tableTable;  // rows in XML
};

struct ExportCatalog {
  std::string path;  // absolute, of the folder or of the single file
  // By name without regard to case.
  std::vector<ExportedFile> forms, reports, macros, queries, modules;
  std::vector<ExportedTable> tables;
  std::vector<std::string> relationPaths;
  SystemFiles system;
};

class TooManyFiles : public std::exception {
 public:
  const char* what() const noexcept override { return "has too many files"; }
};

// More than this are refused.
inline constexpr std::size_t kMostFiles = 200'000;

// The catalog of a folder, or of the one folder inside it where a tool usually puts its exports
// ("source", "src", NAME.src); none for a folder that holds no exported objects. Throws
// TooManyFiles.
std::optional<ExportCatalog> catalogOfFolder(const std::string& path);

// The catalog of one exported object in a file of its own; none for a file that is none.
std::optional<ExportCatalog> catalogOfFile(const std::string& path);

// Whether either of them would find something, without a look at more files than needed.
bool isExport(const std::string& path);

}  // namespace tarrowin::exports
