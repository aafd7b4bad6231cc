#include "app/text_look.h"

#include <QApplication>
#include <QFont>
#include <QFrame>
#include <QLabel>
#include <QPalette>
#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "app/colours.h"

namespace {

constexpr int ordinary_size = 13;

int tag_size = 11;

struct type_of_text {
    const char* role;
    int size; // pixels
    QFont::Weight weight;
    QRgb colour; // 0: the tone's
};

constexpr std::array<type_of_text, 18> types = {{
    {"array", 24, QFont::Medium, 0},
    {"boxtitle", ordinary_size, QFont::DemiBold, colours::quiet},
    {"caption", 15, QFont::DemiBold, 0},
    {"fate", 12, QFont::DemiBold, 0},
    {"fine", 12, QFont::Normal, 0},
    {"heading", 20, QFont::Medium, 0},
    {"message", 14, QFont::Normal, colours::quiet},
    {"number", 24, QFont::Normal, 0},
    {"pagecaption", 12, QFont::Medium, colours::quiet},
    {"programname", 12, QFont::DemiBold, colours::quiet},
    {"rowname", 14, QFont::DemiBold, 0},
    {"small", 12, QFont::Normal, colours::quiet},
    {"state", ordinary_size, QFont::Normal, 0},
    {"strong", ordinary_size, QFont::DemiBold, 0},
    {"tag", 11, QFont::DemiBold, 0},
    {"title", 18, QFont::DemiBold, 0},
    {"value", ordinary_size, QFont::Medium, 0},
    {"verdict", 12, QFont::DemiBold, 0},
}};

type_of_text type_of(const QByteArray& role, const QByteArray& tone) {
    if (role == "pagecaption" && tone == "front") {
        return {"pagecaption", 12, QFont::DemiBold, colours::text};
    }
    const auto* const found = std::find_if(
        types.begin(), types.end(), [&role](const type_of_text& one) { return role == one.role; });
    return found != types.end() ? *found : type_of_text{"", ordinary_size, QFont::Normal, 0};
}

// A state is told by its colour even where it cannot be acted upon.
QRgb colour_of_state(const QByteArray& tone) {
    if (tone == "ok") {
        return colours::ok;
    }
    if (tone == "warn") {
        return colours::warn;
    }
    if (tone == "err") {
        return colours::err;
    }
    return tone == "busy" ? colours::busy : 0;
}

QRgb colour_of_tone(const QByteArray& tone) {
    if (tone == "quiet") {
        return colours::quiet;
    }
    return tone == "faint" ? colours::faint : colours::text;
}

QPalette palette_of(QRgb colour, QRgb disabled) {
    QPalette palette;
    palette.setResolveMask(0); // of its own only what is set here
    palette.setColor(QPalette::WindowText, QColor(colour));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(disabled));
    palette.setColor(QPalette::Window,
                     Qt::transparent); // what the toolkit mixes into faint pictures
    return palette;
}

// A palette is sixty brushes, so that the few there are are kept.
void set_colours(QLabel& label, QRgb colour, QRgb disabled) {
    static std::map<std::pair<QRgb, QRgb>, QPalette> kept;
    const auto key = std::pair(colour, disabled);
    auto found = kept.find(key);
    if (found == kept.end()) {
        found = kept.emplace(key, palette_of(colour, disabled)).first;
    }
    label.setPalette(found->second);
}

} // namespace

void use_language_for_tags(const QString& language) {
    const QStringList eastern = {QStringLiteral("ja"), QStringLiteral("ko"),
                                 QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};
    tag_size = eastern.contains(language) ? 12 : 11;
}

void dress_text(QLabel& label) {
    const QByteArray role = label.property("role").toByteArray();
    const QByteArray tone = label.property("tone").toByteArray();
    const type_of_text type = type_of(role, tone);
    const bool tag = role == "tag";
    QFont font = QApplication::font();
    font.setPixelSize(tag ? tag_size : type.size);
    font.setWeight(type.weight);
    label.setFont(font);
    if (tag) {
        label.setFrameStyle(QFrame::StyledPanel);
    }
    const QRgb fixed = type.colour != 0 ? type.colour : colour_of_state(tone);
    const QRgb ordinary = tag ? colours::quiet : colour_of_tone(tone);
    set_colours(label, fixed != 0 ? fixed : ordinary,
                fixed != 0 ? fixed : (tag ? colours::quiet : colours::faint));
}
