// The machine with Access on it, as one late-bound object: every source of a database (a recording,
// an .mdb file) is reached from here, and nothing above this header knows which one is open.
#pragma once

#include <memory>

#include "core/access_object.h"
#include "shared/code_page.h"

namespace tarrowin {

class ReplaceOperations;  // access/snapshot/atomic_file.h

struct HostOptions {
  // The ANSI code page of every text that passes the interface. Under CodePage::kUtf8 no character
  // is lost, which is what a recording wants.
  CodePage codePage{CodePage::kWestern};
  // How new objects are written; without one by the operations of the disk.
  std::shared_ptr<ReplaceOperations> operations = nullptr;
  // Designs of an .mdb come from the exports beside it (access/database_source.h).
  bool designsFromExports = false;
};

// The machine. Its members, matched like all names without regard to case:
//
//   put SelectedDatabase    the path that the user chose, to be put before the application is asked
//   for
//                           anything: a recording also holds what its application answers before
//                           the database is open (an error of Visible), so the host looks there
//   call GetObject(class)   the running Access application; 429 when there is none
//   call CreateObject(class) a new Access application; 429 for any class but "Access.Application"
//   (a
//                           version number may follow, "Access.Application.9"). It runs until Quit
//                           or until its last reference is released
//   call keybd_event(key, scan, flags, extra), SendKeys(keys[, wait]), DoEvents   without effect
//   call FindWindowA(class, title)  a window handle (Long) while an application of this host runs
//   and the
//                           class is "OMain", else 0
//   call SendMessageA(window, message, w, l)   0
//   call IsExportFolder(path)  whether the path is a folder that OpenCurrentDatabase takes, one of
//                           exported objects
//   get OpenProblem         why the last OpenCurrentDatabase failed, for a person: file name and
//   reason;
//                           empty when it did not fail
//
// The application that CreateObject gives answers the object model of Access and DAO:
// Visible, OpenCurrentDatabase(path, exclusive), CloseCurrentDatabase, Quit(option), CurrentDb,
// DoCmd, Forms, Reports, Modules, References, CreateForm(database, template name),
// CreateControl(form name, type, section, parent name, column name, left, top, width, height),
// RefreshDatabaseWindow. New forms (DoCmd.Close with save option 1) and the modules of converted
// macros (DoCmd.RunCommand 279) are kept in the recording, or in a recording beside a source that
// cannot be written; what cannot be kept raises 3026, 3027, 3043, 3045 or 3197 with the file and
// the reason, and changes nothing (access/model/object_keeper.h). Collections answer get Count and
// get "" with a 0-based index or a name. Paths are texts of the code page; a path that names an
// existing file byte for byte is taken first. OpenCurrentDatabase raises 0x80004005 for what is no
// database, is damaged or cannot be read, 7866 for a newer format, 3031 for a password, 7867 when a
// database is open already, or what the recording says. An object of a closed form or report raises
// 2467, DoCmd of a closed database 91; DAO's objects go on answering for as long as they are held.
ObjectRef createAccessHost(HostOptions options = {});

}  // namespace tarrowin
