// The look of the program: style, fonts and style sheet.
#pragma once

class QApplication;
class QString;

// Style and colours. Interface thread, once, before the first widget.
void apply_look(QApplication& application);

// Fonts and style sheet for a language as our tables name it, which decides what Chinese characters
// look like. Interface thread.
void apply_language(QApplication& application, const QString& language);
