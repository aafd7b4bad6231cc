// The look of the program: style, fonts and style sheet.
#pragma once

class QApplication;
class QString;

// The language, as our tables name it, decides which signs Chinese characters have. Interface
// thread, before the first widget.
void apply_look(QApplication& application, const QString& language);
