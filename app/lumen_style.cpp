#include "app/lumen_style.h"

#include <QProxyStyle>

#include "app/focus_ring.h"

namespace {

// Fusion, with room for the ring that shows the focus.
class lumen_style final : public QProxyStyle {
public:
    lumen_style() : QProxyStyle(QStringLiteral("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        if (metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin) {
            return focus_ring::reach;
        }
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_FocusFrame_AboveWidget) {
            return 1; // the parents would clip it
        }
        if (hint == SH_FocusFrame_Mask) {
            return 0; // a tab's ring lies within its bar
        }
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace

QStyle* make_style() {
    return new lumen_style;
}
