// The type of the window's texts, by role and tone. Interface thread.
#pragma once

class QLabel;
class QString;

// Font and colours of a label, as its properties "role" and "tone" say now.
void dress_text(QLabel& label);

// Room around the text of a tag within its border, in pixels.
constexpr int tag_padding = 8;

// Tags of signs that need a little more than small Latin letters do. Before the first label.
void use_language_for_tags(const QString& language);
