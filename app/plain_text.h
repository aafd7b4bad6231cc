// UTF-8 text made ready for widgets. Any thread.
#pragma once

#include <QString>
#include <string>

// One line of plain text: control characters, line ends among them, become blanks.
QString one_line(const std::string& utf8);
// The same, with its line feeds.
QString plain_lines(const std::string& utf8);
// For tool tips, which guess markup unless they are given some: shown as it is, whatever it holds.
QString tip_text(const QString& plain);
// For buttons, tabs and radio rows, which take a single '&' as the mark of a key.
QString button_text(const std::string& utf8);
