// The colours of the look that more than one part of the window has.
#pragma once

#include <QRgb>

namespace colours {

constexpr QRgb text = 0xffe9eff5;
constexpr QRgb quiet = 0xffb3c0cd;
constexpr QRgb faint = 0xff8f9eac;

constexpr QRgb ok = 0xff74d3a0;
constexpr QRgb warn = 0xfff0c05a;
constexpr QRgb err = 0xffff8d82;
constexpr QRgb busy = 0xff8ad4f3; // the light: what is chosen as well

constexpr QRgb nothing = 0;

} // namespace colours
