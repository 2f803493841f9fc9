// Small makers of controls under the names that events and help know them by.
#pragma once

#include <QLabel>
#include <QString>
#include <QToolButton>
#include <string_view>

namespace tarrowin {

// The name of an element of a control array: "ProgressBar1(0)".
QString elementName(std::string_view array, int index);

QLabel* makeLabel(const QString& name, const QString& caption = {});
// A button with a picture above its caption; the tool tip tells screen readers what it does.
QToolButton* makePictureButton(const QString& name, const QString& caption,
                               std::string_view picture, const QString& toolTip);

// Makes the label's text bold and larger by the factor.
void makeHeading(QLabel* label, double factor);

// Sets the tool tip, and what a screen reader says.
void setToolTipAndName(QWidget* widget, const QString& toolTip);

}  // namespace tarrowin
