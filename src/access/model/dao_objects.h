// The objects of DAO over an open database.
#pragma once

#include <memory>

#include "access/model/model_object.h"

namespace tarrowin {

// Database: Name, Version, Properties, QueryDefs, TableDefs, Relations, Containers, OpenRecordset.
ObjectRef makeDatabaseObject(std::shared_ptr<Session> session);

// QueryDef at a position of the tree's queries: Name, SQL, Parameters, Fields, OpenRecordset, and
// Type and Connect where the source knows them.
ObjectRef makeQueryDef(std::shared_ptr<Session> session, std::size_t query);

// Recordset over an opened source: Fields, Close, EOF, BOF, MoveNext, MoveFirst, Name; the default
// member is a field by name or index. It stands on the first row. Without known rows it is at its
// end.
ObjectRef makeRecordset(std::shared_ptr<Session> session, std::string name, Session::Opened opened);

// Fields of a table or query definition: Name, Type, Size, SourceTable, SourceField; Value raises
// 3219.
ObjectRef makeFields(std::shared_ptr<Session> session, FieldList fields);

// A pair of Name and Value as a Property object; reading Value raises the recorded error.
ObjectRef makeProperty(std::shared_ptr<Session> session, std::string name, Recorded<Value> value);

}  // namespace tarrowin
