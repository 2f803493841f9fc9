// What a folder of exports tells of the database as a whole: its properties, references and
// relations.
#pragma once

#include "access/exports/export_source.h"
#include "access/exports/folder_catalog.h"
#include "access/model/database_model.h"

namespace tarrowin::exports {

// Sets name, version, properties, references and relations of the model. Where no property tells
// AccessVersion, the file format of the project does, else the latest version of a design: "07.53"
// for Access 97, "08.50" for Access 2000, "09.50" for later ones and where nothing tells. A file
// that cannot be read is passed over: the objects can be used without it.
void readDatabaseFacts(const ExportSource& source, const ExportCatalog& catalog,
                       DatabaseModel& model);

// The path of the database of which that folder or file is an export: "Orders.mdb" for the folder
// "Orders.mdb.src" or "Orders.src". The folders "source" and "src" lie beside the database, which
// has the name of the one database file there, else that of the folder around it. Anything else
// counts as an export with the database's own name.
std::string databasePathOf(const std::string& exportPath);

}  // namespace tarrowin::exports
