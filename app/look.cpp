#include "app/look.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>

#include "app/focus_ring.h"
#include "app/lumen_style.h"

namespace {

// What the style sheet does not reach, such as placeholders and disabled icons.
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
    return palette;
}

QFont text_font() {
    QFont font;
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans"),
                      QStringLiteral("Noto Sans CJK SC"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(13);
    return font;
}

} // namespace

void apply_look(QApplication& application) {
    QApplication::setStyle(make_style());
    QApplication::setPalette(dark_palette());
    QApplication::setFont(text_font());
    QFile sheet(QStringLiteral(":/lumen.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    }
    new focus_display(&application);
}
