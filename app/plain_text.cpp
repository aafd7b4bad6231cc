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
    // Left to itself the toolkit breaks even short tips into narrow lines.
    constexpr qsizetype longest_line = 80;
    const bool fits = plain.size() <= longest_line;
    return QStringLiteral("<p style=\"white-space: %1;\">%2</p>")
        .arg(fits ? QLatin1String("pre") : QLatin1String("pre-wrap"), plain.toHtmlEscaped());
}

QString button_text(const std::string& utf8) {
    return one_line(utf8).replace(QLatin1Char('&'), QLatin1String("&&"));
}
