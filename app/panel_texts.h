// Texts and pictures of panels.
#pragma once

#include <QString>

class QLabel;
class text_field;

// All of them: `role` and `tone` are the style's; the caller owns the widget until it is put
// into a layout. Interface thread.

// Plain text of as many lines as it needs.
QLabel* wrapped_text(const QString& text, const char* role, const char* tone = "");
// Plain text of one line, which takes the width that there is; `height` in pixels.
text_field* one_line_text(const QString& text, int height, const char* role, const char* tone = "");
// A picture by its name, without an ending, drawn into width x height pixels.
QLabel* panel_picture(const char* name, int width, int height);
