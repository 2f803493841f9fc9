// Record sources: what fields a recordset on a table, a query or an SQL text has, found from the
// database's schema alone, as the database engine would show them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

// All text of this header is UTF-8, names in the descriptions of errors included.

// One field of a recordset or a table.
struct SourceField {
  std::string name;
  int type = 10;            // DAO type number: 1 Boolean, 4 Long, 8 Date, 10 Text, 12 Memo...
  int size = 255;           // DAO size: bytes, characters for text; 0 for Memo and OLE fields
  std::string sourceTable;  // the base table; empty for a computed field. In a SchemaTable: empty
                            // stands for the table's own name
  std::string sourceField;  // the field's name in the base table; empty as above

  bool operator==(const SourceField&) const = default;
};

struct SchemaTable {
  std::string name;
  std::vector<SourceField> fields;
};

struct SchemaQuery {
  std::string name;
  std::string sql;  // Access SQL
  // Parameters known besides those that the SQL shows.
  std::vector<std::string> parameters;
  // The result's fields where they are known already; the SQL is then not analysed.
  std::optional<std::vector<SourceField>> fields;
};

// The tables and queries of a database. Names are matched without regard to case, which is the
// implementation's task. Called only for names that a source mentions, once for each name that
// exists.
class Schema {
 public:
  virtual ~Schema() = default;
  // None for an unknown name.
  virtual std::optional<SchemaTable> findTable(std::string_view name) const = 0;
  virtual std::optional<SchemaQuery> findQuery(std::string_view name) const = 0;
};

// A parameter of a query: declared by a PARAMETERS clause, or a name that nothing resolves.
struct SourceParameter {
  std::string name;  // without brackets for a simple name; a form reference as it is written
  int type = 10;     // DAO type number; Text unless declared

  bool operator==(const SourceParameter&) const = default;
};

// Names of the parameters that have a value. A name is matched without regard to case, blanks
// around it or brackets: "[Forms]![F]![Txt]" is "forms!f!txt".
using SuppliedParameters = std::vector<std::string>;

// Answers for one schema, which has to outlive the analyzer. Tables, queries and answers are kept:
// after a change of the schema a new analyzer is due. Not for use by two threads at a time.
//
// Choices where the engine leaves room:
// - A computed column without an alias is named "Expr" and 1000 + its place in the select list,
//   from 0. Fields of the same name are all shown as "Table.Field", Table being the name or alias
//   in the FROM clause; a second mention of the very same field is named like a computed column.
// - A computed column, a column of a union and a crosstab's value columns have no source table.
//   Through a query, the source table is the base table.
// - A crosstab has its row headings and, where PIVOT has an In list, one field for each value of
//   it; the headings that only the data would give are not there.
// - A table from another database (IN clause, or a name before the table's) is taken for the
//   table of that name in this schema.
// - Sum and Avg keep Currency and Decimal and make other numbers Double; a function that is not
//   known gives Text, as does whatever has no type.
// - An alias of the select list may be used in other columns and in ORDER BY; elsewhere it is a
//   parameter, unless it is a field as well.
class RecordSourceAnalyzer {
 public:
  explicit RecordSourceAnalyzer(const Schema& schema);
  ~RecordSourceAnalyzer();
  RecordSourceAnalyzer(RecordSourceAnalyzer&&) noexcept;
  RecordSourceAnalyzer& operator=(RecordSourceAnalyzer&&) noexcept;

  // The fields of a recordset on the source: the name of a table, else of a query, else an SQL
  // text. Raises VbError
  // - 3078 with the name of an unknown table or query; with the source itself when it is empty, no
  //   name and no SQL, or SQL that cannot be resolved (malformed, an ambiguous name, a query that
  //   rests on itself, beyond the limits on length and nesting);
  // - 3061 with the number of parameters without a value, those of the queries below included;
  // - 3219 when the source is an action query, which gives no records.
  std::vector<SourceField> fieldsOf(std::string_view source,
                                    const SuppliedParameters& supplied = {});

  // The fields as if every parameter had a value. Raises as fieldsOf but for 3061.
  std::vector<SourceField> fieldsWithParameters(std::string_view source);

  // The parameters of the source, each once: the declared ones, then those of the queries below and
  // the undeclared in the order of the text. Raises as fieldsOf but for 3061.
  std::vector<SourceParameter> parametersOf(std::string_view source);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarrowin
