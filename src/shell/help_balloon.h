// A balloon of the online help: a heading, a text, and up to five labels to choose from or
// paragraphs to read.
#pragma once

#include <QDialog>
#include <QStringList>

namespace tarrowin {

class HelpBalloon : public QDialog {
  Q_OBJECT

 public:
  enum class Labels { kLinks, kParagraphs };

  HelpBalloon(const QString& heading, const QString& text, const QStringList& labels, Labels kind,
              QWidget* parent = nullptr);

  // The number of the chosen label, from 1; 0 while there is none.
  int chosen() const { return chosen_; }

 private:
  QWidget* textPane(QWidget* content);
  QWidget* labelButton(const QString& label, int number);

  int chosen_ = 0;
};

}  // namespace tarrowin
