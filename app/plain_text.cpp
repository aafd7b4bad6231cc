#include "app/plain_text.h"

namespace {

QString without_controls(const std::string& utf8, bool keep_line_feeds) {
    QString text = QString::fromStdString(utf8);
    for (QChar& character : text) {
        const bool kept = keep_line_feeds && character == QLatin1Char('\n');
        if (character.category() == QChar::Other_Control && !kept) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

} // namespace

QString one_line(const std::string& utf8) {
    return without_controls(utf8, false);
}

QString plain_lines(const std::string& utf8) {
    return without_controls(utf8, true);
}

QString tip_text(const QString& plain) {
    if (plain.isEmpty()) {
        return {};
    }
    // Its blanks stay, and long lines are broken at them.
    return QLatin1String("<p style=\"white-space: pre-wrap;\">") + plain.toHtmlEscaped() +
           QLatin1String("</p>");
}

QString button_text(const std::string& utf8) {
    return one_line(utf8).replace(QLatin1Char('&'), QLatin1String("&&"));
}
