// Texts on their way between the program's code page and the window.
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <utility>

#include "shared/code_page.h"

namespace tarrowin {

class PageText {
 public:
  explicit PageText(CodePage page) : page_(std::move(page)) {}

  const CodePage& page() const { return page_; }

  QString shown(std::string_view text) const {
    const std::string utf8 = page_.toUtf8(text);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  }
  // With the line ends that widgets know.
  QString shownLines(std::string_view text) const {
    return shown(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
  }
  // A character that the page lacks becomes "?".
  std::string entered(const QString& text) const { return page_.fromUtf8(text.toStdString()); }

 private:
  CodePage page_;
};

}  // namespace tarrowin
