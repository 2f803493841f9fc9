// Relations between tables, as DAO's Relations collection gives them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarrowin::mdb {

struct RelationField {
  std::string name;         // the column of the one side
  std::string foreignName;  // the column of the many side
};

struct Relation {
  std::string name;
  std::string table;         // the one side
  std::string foreignTable;  // the many side
  // DAO's Attributes: 1 unique, 2 not enforced, 0x100 update cascade, 0x1000 delete cascade,
  // 0x1000000 left join, 0x2000000 right join.
  std::int32_t attributes = 0;
  std::vector<RelationField> fields;
};

}  // namespace tarrowin::mdb
