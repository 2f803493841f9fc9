// A folder of files written by a test, and the real exports among the samples.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "shared/temporary_directory.h"

namespace tarrowin::exports {

class ExportFolder {
 public:
  // Relative to the folder, which is two levels deep, so that something can lie beside it.
  const ExportFolder& write(std::string_view name, std::string_view content) const {
    const std::filesystem::path path = path_ / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    return *this;
  }
  std::string path() const { return path_.string(); }
  std::string path(std::string_view name) const { return (path_ / name).string(); }

 private:
  test::TemporaryDirectory directory_;
  std::filesystem::path path_ =
      std::filesystem::path(directory_.path()) / "Shop" / "Orders.mdb.src";
};

// Empty where there are no samples.
inline std::filesystem::path sampleExports() {
  const char* named = std::getenv("TARROWIN_SAMPLES");
  const std::filesystem::path samples =
      named ? named : std::filesystem::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
  const std::filesystem::path exports = samples / "exports";
  return std::filesystem::is_directory(exports) ? exports : std::filesystem::path();
}

inline std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// ASCII as UTF-16 with its byte order mark.
inline std::string utf16(std::string_view text) {
  std::string result = "\xFF\xFE";
  for (const char character : text) (result += character) += '\0';
  return result;
}

inline constexpr std::string_view kSmallForm =
    "Version =20\n"
    "VersionRequired =20\n"
    "Begin Form\n"
    "    Width =7021\n"
    "    RecordSource =\"Orders\"\n"
    "    Begin\n"
    "        Begin Label\n"
    "            BackStyle =0\n"
    "        End\n"
    "        Begin Section\n"
    "            Height =2955\n"
    "            Name =\"Detail\"\n"
    "            Begin\n"
    "                Begin TextBox\n"
    "                    Left =1927\n"
    "                    Name =\"txtId\"\n"
    "                    Begin\n"
    "                        Begin Label\n"
    "                            Name =\"lblId\"\n"
    "                            Caption =\"Id\"\n"
    "                        End\n"
    "                    End\n"
    "                End\n"
    "            End\n"
    "        End\n"
    "    End\n"
    "End\n";

inline constexpr std::string_view kFormCode =
    "CodeBehindForm\n"
    "Attribute VB_GlobalNameSpace = False\n"
    "Attribute VB_Creatable = True\n"
    "Attribute VB_PredeclaredId = True\n"
    "Attribute VB_Exposed = False\n"
    "Option Compare Database\n"
    "\n"
    "Private Sub Form_Load()\n"
    "End Sub\n";

}  // namespace tarrowin::exports
