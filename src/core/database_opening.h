// cmdOpen_Click: the one road by which a database enters the program.
#pragma once

namespace tarrowin {

struct MainObject;

// Asks for a file, closes what is open, opens the file in Access, checks its version and fills the
// six lists. Everything that goes wrong is told in message boxes; afterwards mblnOpenFailed and
// gstrDbPath tell how it ended.
void cmdOpen_Click(MainObject& main);

}  // namespace tarrowin
