// Answers the dialogs that come up while a test drives the window, and remembers them.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace tarrowin::test {

// A dialog that was up, as a person saw it.
struct SeenDialog {
  QString kind;  // "box", "file", "folder", "balloon", "notice"
  QString title;
  QString text;
};

// While it lives, every modal dialog is answered by the first answer that waits, or by Escape when
// none does. Answers: a path for file and folder dialogs; a caption for boxes ("Yes"), a number for
// the label of a balloon, "" for Escape.
class DialogDriver : public QObject {
 public:
  DialogDriver();

  void answer(const QString& answer) { answers_.push_back(answer); }
  const std::vector<SeenDialog>& seen() const { return seen_; }
  // The dialogs of that kind.
  std::vector<SeenDialog> seen(const QString& kind) const;
  void forget() { seen_.clear(); }
  // Called with each dialog before it is answered, as when a screenshot is wanted.
  std::function<void(QWidget&)> look;

 private:
  void poll();
  void answerDialog(QWidget& dialog);

  QTimer timer_;
  bool answering_ = false;
  std::deque<QString> answers_;
  std::vector<SeenDialog> seen_;
};

}  // namespace tarrowin::test
