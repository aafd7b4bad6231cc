#include "app/button_look.h"

#include <QApplication>
#include <QByteArray>
#include <QFont>
#include <QStyleOptionButton>
#include <QVariant>
#include <QWidget>
#include <optional>

#include "app/colours.h"

namespace {

constexpr int control_radius = 8;
constexpr QRgb light = 0xffb9e6fa;

QByteArray kind_of(const QWidget& button) {
    return button.property("kind").toByteArray();
}

struct looks_of_kind {
    button_look rest;
    button_look hovered;
    std::optional<button_look> pressed; // where that is to be seen
};

constexpr button_look bordered(QRgb fill, QRgb border, QRgb ink) {
    return {{fill, border, control_radius, true}, ink, false};
}

// A filled one, whose border is of the same colour.
constexpr button_look filled(QRgb fill, QRgb ink) {
    return bordered(fill, fill, ink);
}

looks_of_kind primary() {
    constexpr QRgb ink = 0xff0b1720;
    return {filled(0xff8ad4f3, ink), filled(light, ink), filled(0xff6cbfe2, ink)};
}

looks_of_kind danger() {
    constexpr QRgb edge = 0xff985e5b;
    return {bordered(qRgba(255, 141, 130, 18), edge, colours::err),
            bordered(qRgba(255, 141, 130, 46), colours::err, colours::err),
            bordered(qRgba(255, 141, 130, 13), edge, colours::err)};
}

looks_of_kind destructive() {
    constexpr QRgb ink = 0xff220b09;
    return {filled(0xfff27f74, ink), filled(0xffff9a90, ink), filled(0xffdc6c61, ink)};
}

looks_of_kind window_button(const QWidget& button) {
    const bool closes = button.objectName() == QLatin1String("closebutton");
    const button_look rest = bordered(colours::nothing, colours::nothing, colours::text);
    const button_look hovered = closes
                                    ? filled(0xffc9483d, colours::text)
                                    : bordered(qRgba(255, 255, 255, 31), 0xff5b6570, colours::text);
    return {rest, hovered, {}};
}

looks_of_kind link() {
    constexpr surface none = {colours::nothing, colours::nothing, 6, false};
    constexpr button_look hovered = {none, light, true};
    return {{none, colours::busy, false}, hovered, {}};
}

looks_of_kind page() {
    constexpr int radius = 12;
    constexpr button_look hovered = {
        {qRgba(255, 255, 255, 10), colours::nothing, radius, false}, colours::text, false};
    return {
        {{colours::nothing, colours::nothing, radius, false}, colours::text, false}, hovered, {}};
}

looks_of_kind secondary() {
    return {bordered(qRgba(255, 255, 255, 17), 0xff424b55, colours::text),
            bordered(qRgba(255, 255, 255, 31), 0xff5b6570, colours::text),
            bordered(qRgba(0, 0, 0, 56), 0xff48525c, colours::text)};
}

looks_of_kind looks_of(const QWidget& button) {
    const QByteArray kind = kind_of(button);
    if (kind == "primary") {
        return primary();
    }
    if (kind == "danger") {
        return danger();
    }
    if (kind == "destructive") {
        return destructive();
    }
    if (kind == "window") {
        return window_button(button);
    }
    if (kind == "link") {
        return link();
    }
    return kind == "page" ? page() : secondary();
}

// Sunken and drained of colour, in the shape of its kind.
button_look disabled(button_look look, bool running) {
    look.ground.fill = running ? qRgba(255, 212, 77, 18) : qRgba(8, 12, 16, 90);
    look.ground.border = running ? 0xff81723a : 0xff333c46;
    look.ink = running ? colours::text : colours::faint;
    return look;
}

} // namespace

button_look look_of_button(const QStyleOptionButton& option, const QWidget& button) {
    const looks_of_kind looks = looks_of(button);
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return disabled(looks.rest, button.property("running").toBool());
    }
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    if (option.state.testFlag(QStyle::State_Sunken) && looks.pressed) {
        return *looks.pressed;
    }
    return hovered ? looks.hovered : looks.rest;
}

int border_of_button(const QWidget& button) {
    const QByteArray kind = kind_of(button);
    return kind == "link" || kind == "page" ? 0 : 1;
}

int padding_of_button(const QWidget& button) {
    const QByteArray kind = kind_of(button);
    if (kind == "window" || kind == "page") {
        return border_of_button(button);
    }
    constexpr int of_links = 6;
    constexpr int of_others = 12;
    return (kind == "link" ? of_links : of_others) + border_of_button(button);
}

void dress_button(QWidget& button) {
    QFont font = QApplication::font();
    font.setWeight(QFont::DemiBold);
    if (kind_of(button) == "link") {
        font.setPixelSize(12);
    }
    button.setFont(font);
}
