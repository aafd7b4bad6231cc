// The look of the program: style, colours and fonts.
#pragma once

class QApplication;
class QString;

// Style and colours. Interface thread, once, before the first widget.
void apply_look(QApplication& application);

// Fonts for a language as our tables name it, which decides what Chinese characters
// look like. Interface thread.
void apply_language(const QString& language);
