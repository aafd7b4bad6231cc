#include "app/look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QToolTip>

#include "app/focus_ring.h"
#include "app/lumen_style.h"
#include "app/text_look.h"

namespace {

QPalette dark_palette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1b, 0x23, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x12, 0x18, 0x1f));
    palette.setColor(QPalette::Button, QColor(0x23, 0x2d, 0x38));
    palette.setColor(QPalette::Highlight, QColor(0x25, 0x33, 0x3e));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(role, QColor(0xe9, 0xef, 0xf5));
        palette.setColor(QPalette::Disabled, role, QColor(0x8f, 0x9e, 0xac));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(0x8f, 0x9e, 0xac));
    palette.setColor(QPalette::ToolTipBase, QColor(0x2d, 0x3a, 0x47));
    palette.setColor(QPalette::ToolTipText, QColor(0xe9, 0xef, 0xf5));
    return palette;
}

// The same Chinese character looks different from country to country.
QString eastern_family(const QString& language) {
    if (language == QLatin1String("ja")) {
        return QStringLiteral("Noto Sans CJK JP");
    }
    if (language == QLatin1String("ko")) {
        return QStringLiteral("Noto Sans CJK KR");
    }
    return language == QLatin1String("zh_TW") ? QStringLiteral("Noto Sans CJK TC")
                                              : QStringLiteral("Noto Sans CJK SC");
}

QFont text_font(const QString& language) {
    QFont font;
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                      eastern_family(language), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(13);
    return font;
}

} // namespace

void apply_look(QApplication& application) {
    QApplication::setStyle(make_style());
    QApplication::setPalette(dark_palette());
    QToolTip::setPalette(dark_palette());
    new focus_display(&application);
}

void apply_language(const QString& language) {
    QFont font = text_font(language);
    QApplication::setFont(font);
    font.setPixelSize(12);
    QToolTip::setFont(font);
    use_language_for_tags(language);
}
