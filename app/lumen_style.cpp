#include "app/lumen_style.h"

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QVariant>

#include "app/button_look.h"
#include "app/focus_ring.h"
#include "app/surfaces.h"
#include "app/text_look.h"

namespace {

constexpr int indicator = 18; // of a radio button
constexpr int border = 1;
constexpr int tip_room = 10; // around the text of a tip
constexpr int tip_sides = 2; // more at the left and the right

bool is(QStyle::State state, QStyle::StateFlag flag) {
    return state.testFlag(flag);
}

bool is_tag(const QWidget& widget) {
    return widget.property("role").toByteArray() == "tag";
}

void paint_radio(QPainter& painter, const QStyleOption& option) {
    QString name = is(option.state, QStyle::State_On) ? QStringLiteral("radio-on")
                                                      : QStringLiteral("radio-off");
    const bool hovered = is(option.state, QStyle::State_MouseOver);
    if (!is(option.state, QStyle::State_Enabled)) {
        name += QLatin1String("-disabled");
    } else if (hovered) {
        name = is(option.state, QStyle::State_On) ? QStringLiteral("radio-on-hover")
                                                  : QStringLiteral("radio-hover");
    }
    QIcon(QStringLiteral(":/%1.png").arg(name)).paint(&painter, option.rect);
}

void paint_tip(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, QColor(0x5d, 0x6a, 0x77));
    painter.fillRect(option.rect.adjusted(border, border, -border, -border),
                     option.palette.color(QPalette::ToolTipBase));
}

// Fusion, with surfaces and buttons of our own, and room for the ring that shows the focus.
class lumen_style final : public QProxyStyle {
public:
    lumen_style() : QProxyStyle(QStringLiteral("Fusion")) {}

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;

private:
    void draw_button_label(const QStyleOptionButton& option, QPainter& painter,
                           const QPushButton& button) const;
};

void lumen_style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (widget->inherits("QTipLabel")) {
        widget->setContentsMargins(tip_sides, 0, tip_sides, 0);
    } else if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr) {
        dress_text(*label);
    } else if (auto* frame = qobject_cast<QFrame*>(widget); frame != nullptr) {
        if (has_border(*frame)) {
            frame->setFrameStyle(QFrame::StyledPanel);
        }
        frame->setAttribute(Qt::WA_Hover, frame->property("role") == QLatin1String("radiorow"));
    } else if (qobject_cast<QPushButton*>(widget) != nullptr) {
        dress_button(*widget);
    }
}

void lumen_style::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    if (element == PE_FrameFocusRect) {
        return; // the ring tells it
    }
    if (element == PE_PanelTipLabel) {
        paint_tip(*painter, *option);
        return;
    }
    if (element == PE_IndicatorRadioButton) {
        paint_radio(*painter, *option);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void lumen_style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* button = qobject_cast<const QPushButton*>(widget);
    const auto* of_button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_ShapedFrame && qobject_cast<const QFrame*>(widget) != nullptr &&
        widget->property("role").isValid()) {
        paint_surface(*painter, option->rect,
                      surface_of(*widget, is(option->state, State_MouseOver)));
    } else if (element == CE_PushButtonBevel && button != nullptr && of_button != nullptr) {
        paint_surface(*painter, option->rect, look_of_button(*of_button, *button).ground);
    } else if (element == CE_PushButtonLabel && button != nullptr && of_button != nullptr) {
        draw_button_label(*of_button, *painter, *button);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void lumen_style::draw_button_label(const QStyleOptionButton& option, QPainter& painter,
                                    const QPushButton& button) const {
    const button_look look = look_of_button(option, button);
    QStyleOptionButton inked(option);
    inked.palette.setColor(QPalette::ButtonText, QColor(look.ink));
    painter.save();
    QFont font = painter.font();
    font.setUnderline(look.underlined);
    painter.setFont(font);
    QProxyStyle::drawControl(CE_PushButtonLabel, &inked, &painter, &button);
    painter.restore();
}

QRect lumen_style::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const {
    if (element == SE_ShapedFrameContents && widget != nullptr && has_border(*widget)) {
        const int sides = border + (is_tag(*widget) ? tag_padding : 0);
        return option->rect.adjusted(sides, border, -sides, -border);
    }
    if (element == SE_PushButtonContents && widget != nullptr) {
        const int sides = padding_of_button(*widget);
        const int ends = border_of_button(*widget);
        return option->rect.adjusted(sides, ends, -sides, -ends);
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize lumen_style::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const {
    if (type == CT_PushButton && widget != nullptr) {
        return contents + QSize(2 * padding_of_button(*widget), 2 * border_of_button(*widget));
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int lumen_style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    switch (metric) {
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return focus_ring::reach;
    case PM_ToolTipLabelFrameWidth:
        return tip_room;
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicator;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int lumen_style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
    if (hint == SH_FocusFrame_AboveWidget) {
        return 1; // the parents would clip it
    }
    if (hint == SH_FocusFrame_Mask) {
        return 0; // a tab's ring lies within its bar
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace

QStyle* make_style() {
    return new lumen_style;
}
