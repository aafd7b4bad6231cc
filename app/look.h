// The look of the program: style, fonts and style sheet.
#pragma once

class QApplication;

// Interface thread, before the first widget.
void apply_look(QApplication& application);
