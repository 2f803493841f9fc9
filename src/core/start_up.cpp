// The marker file and the order of the start.
#include "core/start_up.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/access_references.h"
#include "core/database_opening.h"
#include "core/main_object.h"
#include "core/statement.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr int kMarkerSlot = 1;
constexpr int kDefaultPointer = 0;
constexpr int kHourglassPointer = 11;
constexpr std::int32_t kErrFileNotFound = 53;
// Member unknown, action cancelled, no such element of a control: what a missing library causes.
constexpr std::array<std::int32_t, 3> kMissingLibrary = {438, 2501, 35613};

void writeMarker(const Marker& marker, std::string_view line) {
  marker.files.Open(marker.path, FileMode::kOutput, kMarkerSlot);
  marker.files.Print(kMarkerSlot, line);
  marker.files.Close(kMarkerSlot);
}

std::string readMarker(const Marker& marker) {
  marker.files.Open(marker.path, FileMode::kInput, kMarkerSlot);
  std::string line;
  // An empty file has no line to read, and does not say 0.
  if (!marker.files.Eof(kMarkerSlot)) line = marker.files.LineInput(kMarkerSlot);
  marker.files.Close(kMarkerSlot);
  return line;
}

bool noticeIsWanted(const Marker& marker) {
  try {
    return Trim(readMarker(marker)) != "0";
  } catch (const VbError& error) {
    if (error.number() != kErrFileNotFound) throw;
    writeMarker(marker, "1");
    return true;
  }
}

Resume onStartError(MainObject& main, const VbError& error) {
  if (std::ranges::find(kMissingLibrary, error.number()) != kMissingLibrary.end()) {
    CheckAccessRefs(main);
  } else {
    main.window.mousePointer = kDefaultPointer;
    main.errorBox("TarrowinOpen", error);
  }
  return Resume::kNext;
}

}  // namespace

void TarrowinOpen(MainObject& main, const Marker& marker, StartUpWindows& windows) {
  Procedure procedure([&](const VbError& error) { return onStartError(main, error); });
  procedure.run([&] {
    bool notice = true;
    procedure.statement([&] { notice = noticeIsWanted(marker); });
    // Whatever failed while it was open.
    marker.files.Close(kMarkerSlot);
    if (notice) {
      procedure.statement([&] { windows.unloadSplash(); });
      procedure.statement([&] { windows.showNotice(); });
      return;
    }
    main.window.mousePointer = kHourglassPointer;
    procedure.statement([&] { windows.showMainWindow(); });
    procedure.statement([&] { windows.unloadSplash(); });
    main.window.mousePointer = kDefaultPointer;
  });
}

void forgetNotice(const Marker& marker) { writeMarker(marker, "0"); }

void Form_Load(MainObject& main, const std::string& openDirectory) {
  Procedure procedure([&](const VbError& error) {
    main.window.mousePointer = kDefaultPointer;
    main.errorBox("Form_Load", error);
    return Resume::kNext;
  });
  procedure.run([&] {
    main.window.mousePointer = kHourglassPointer;
    main.state.mstrLastDbPath = openDirectory;
    procedure.statement([&] { cmdOpen_Click(main); });
    main.window.mousePointer = kDefaultPointer;
  });
}

}  // namespace tarrowin
