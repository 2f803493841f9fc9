// Rows of a query written by hand: each call adds one row, in the order of its attribute.
// An empty text stands for Null.
#pragma once

#include <string>
#include <vector>

#include "access/mdb/query_rows.h"

namespace tarrowin::mdb {

class RowBuilder {
 public:
  RowBuilder() { add(0, {}, {}, {}, 0); }

  RowBuilder& kind(int flag, const std::string& name1 = {}, const std::string& name2 = {},
                   const std::string& expression = {}) {
    return add(1, name1, name2, expression, flag);
  }
  RowBuilder& parameter(const std::string& name, int type, std::optional<int> size = {}) {
    add(2, name, {}, {}, type);
    rows_.back().extra = size;
    return *this;
  }
  RowBuilder& options(int flag, const std::string& top = {}) { return add(3, top, {}, {}, flag); }
  RowBuilder& otherDatabase(const std::string& path, const std::string& connect = {}) {
    return add(4, path, {}, connect, {});
  }
  RowBuilder& source(const std::string& name, const std::string& alias = {},
                     const std::string& expression = {}) {
    return add(5, name, alias, expression, {});
  }
  RowBuilder& column(const std::string& expression, const std::string& alias = {}, int flag = 0) {
    return add(6, alias, {}, expression, flag);
  }
  RowBuilder& fieldColumn(const std::string& field, const std::string& expression, int flag = 0) {
    return add(6, {}, field, expression, flag);
  }
  RowBuilder& join(const std::string& left, const std::string& right, const std::string& condition,
                   std::optional<int> flag = 1) {
    return add(7, left, right, condition, flag);
  }
  RowBuilder& where(const std::string& expression) { return add(8, {}, {}, expression, {}); }
  RowBuilder& groupBy(const std::string& expression, int flag = 0) {
    return add(9, {}, {}, expression, flag);
  }
  RowBuilder& having(const std::string& expression) { return add(10, {}, {}, expression, {}); }
  RowBuilder& orderBy(const std::string& expression, const std::string& direction = {}) {
    return add(11, direction, {}, expression, {});
  }

  RowBuilder& add(int attribute, const std::string& name1, const std::string& name2,
                  const std::string& expression, std::optional<int> flag) {
    const auto number = static_cast<unsigned>(rows_.size());
    QueryRow row;
    row.attribute = attribute;
    row.order = {static_cast<std::uint8_t>(number >> 16), static_cast<std::uint8_t>(number >> 8),
                 static_cast<std::uint8_t>(number)};
    if (!name1.empty()) row.name1 = name1;
    if (!name2.empty()) row.name2 = name2;
    if (!expression.empty()) row.expression = expression;
    row.flag = flag;
    rows_.push_back(row);
    return *this;
  }

  std::vector<QueryRow>& rows() { return rows_; }

 private:
  std::vector<QueryRow> rows_;
};

}  // namespace tarrowin::mdb
