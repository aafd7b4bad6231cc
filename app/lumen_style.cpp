#include "app/lumen_style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionSlider>
#include <QStyleOptionTab>
#include <QStyleOptionViewItem>
#include <QTabBar>
#include <QTreeView>
#include <QVariant>

#include "app/box_look.h"
#include "app/button_look.h"
#include "app/focus_ring.h"
#include "app/pictures.h"
#include "app/scroll_look.h"
#include "app/surfaces.h"
#include "app/tab_look.h"
#include "app/text_look.h"
#include "app/tree_look.h"

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

bool is_in_box(const QWidget& widget) {
    return qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
}

bool is_tree(const QWidget* widget) {
    return qobject_cast<const QTreeView*>(widget) != nullptr;
}

void paint_radio(QPainter& painter, const QStyleOption& option) {
    const bool on = is(option.state, QStyle::State_On);
    const bool hovered = is(option.state, QStyle::State_MouseOver);
    const char* name = on ? "radio-on.png" : "radio-off.png";
    if (!is(option.state, QStyle::State_Enabled)) {
        name = on ? "radio-on-disabled.png" : "radio-off-disabled.png";
    } else if (hovered) {
        name = on ? "radio-on-hover.png" : "radio-hover.png";
    }
    paint_picture(painter, option.rect, QLatin1String(name));
}

void paint_tip(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, QColor(0x5d, 0x6a, 0x77));
    painter.fillRect(option.rect.adjusted(border, border, -border, -border),
                     option.palette.color(QPalette::ToolTipBase));
}

// Fusion, with surfaces and controls of our own, and room for the ring that shows the focus.
class lumen_style final : public QProxyStyle {
public:
    lumen_style() : QProxyStyle(QStringLiteral("Fusion")) {}

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
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
    bool draw_tab(ControlElement element, const QStyleOptionTab& option, QPainter& painter,
                  const QWidget* widget) const;
    bool draw_row(const QStyleOptionViewItem& option, QPainter& painter,
                  const QWidget* widget) const;
};

void lumen_style::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (widget->inherits("QTipLabel")) {
        widget->setContentsMargins(tip_sides, 0, tip_sides, 0);
    } else if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr) {
        dress_text(*label);
    } else if (auto* tree = qobject_cast<QTreeView*>(widget); tree != nullptr) {
        dress_tree(*tree);
    } else if (auto* list = qobject_cast<QAbstractItemView*>(widget);
               list != nullptr && is_in_open_list(*list)) {
        dress_list(*list);
    } else if (auto* frame = qobject_cast<QFrame*>(widget); frame != nullptr) {
        if (has_border(*frame)) {
            frame->setFrameStyle(QFrame::StyledPanel);
        }
        frame->setAttribute(Qt::WA_Hover, frame->property("role") == QLatin1String("radiorow"));
    } else if (qobject_cast<QPushButton*>(widget) != nullptr) {
        dress_button(*widget);
    } else if (auto* box = qobject_cast<QComboBox*>(widget); box != nullptr) {
        dress_box(*box);
    } else if (auto* tabs = qobject_cast<QTabBar*>(widget); tabs != nullptr) {
        dress_tabs(*tabs);
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
    if (element == PE_PanelLineEdit && widget != nullptr && is_in_box(*widget)) {
        return; // the box is painted already
    }
    if (element == PE_IndicatorRadioButton) {
        paint_radio(*painter, *option);
        return;
    }
    if (is_tree(widget) && element == PE_IndicatorBranch) {
        paint_branch(*painter, *option);
        return;
    }
    if (is_tree(widget) && element == PE_PanelItemViewRow) {
        paint_tree_row(*painter, *option);
        return;
    }
    if (is_tree(widget) && element == PE_PanelItemViewItem) {
        return; // draw_row() has painted it, from edge to edge
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void lumen_style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* button = qobject_cast<const QPushButton*>(widget);
    const auto* of_button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* of_tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    const auto* of_row = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (of_tab != nullptr && draw_tab(element, *of_tab, *painter, widget)) {
        return;
    }
    if (element == CE_ItemViewItem && of_row != nullptr && draw_row(*of_row, *painter, widget)) {
        return;
    }
    if (element == CE_ShapedFrame && widget != nullptr && is_frame_of_list(*widget)) {
        paint_frame_of_list(*painter, option->rect);
    } else if (element == CE_ShapedFrame && qobject_cast<const QFrame*>(widget) != nullptr &&
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

bool lumen_style::draw_tab(ControlElement element, const QStyleOptionTab& option, QPainter& painter,
                           const QWidget* widget) const {
    if (element == CE_TabBarTabShape) {
        paint_tab(painter, option);
        return true;
    }
    if (element == CE_TabBarTabLabel) {
        const QStyleOptionTab label = label_of_tab(option);
        QProxyStyle::drawControl(element, &label, &painter, widget);
        return true;
    }
    return false;
}

bool lumen_style::draw_row(const QStyleOptionViewItem& option, QPainter& painter,
                           const QWidget* widget) const {
    if (widget != nullptr && is_in_open_list(*widget)) {
        paint_list_row(painter, option);
        return true;
    }
    if (!is_tree(widget)) {
        return false;
    }
    paint_tree_row(painter, option);
    QStyleOptionViewItem inner(option);
    inner.rect =
        visualRect(option.direction, option.rect, option.rect.adjusted(left_of_tree_row, 0, 0, 0));
    QProxyStyle::drawControl(CE_ItemViewItem, &inner, &painter, widget);
    return true;
}

void lumen_style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto* of_box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* of_bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ComboBox && of_box != nullptr) {
        paint_box(*painter, *of_box);
    } else if (control == CC_ScrollBar && of_bar != nullptr) {
        paint_scroll_bar(*painter, *of_bar);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect lumen_style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl part, const QWidget* widget) const {
    const auto* of_box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* of_bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ComboBox && of_box != nullptr) {
        return part_of_box(*of_box, part);
    }
    if (control == CC_ScrollBar && of_bar != nullptr) {
        return part_of_scroll_bar(*of_bar, part);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect lumen_style::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const {
    if (element == SE_ShapedFrameContents && widget != nullptr && has_border(*widget)) {
        const int sides = border + (is_tag(*widget) ? tag_padding : 0);
        return option->rect.adjusted(sides, border, -sides, -border);
    }
    if (element == SE_ShapedFrameContents && widget != nullptr && is_frame_of_list(*widget)) {
        return option->rect.adjusted(room_around_list, room_around_list, -room_around_list,
                                     -room_around_list);
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
    if (type == CT_TabBarTab) {
        return size_of_tab(contents);
    }
    const QSize usual = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ItemViewItem && is_tree(widget)) {
        return {usual.width() + left_of_tree_row, height_of_tree_row};
    }
    if (type == CT_ItemViewItem && widget != nullptr && is_in_open_list(*widget)) {
        return {usual.width() + 2 * sides_of_list_row, height_of_list_row};
    }
    return usual;
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
    case PM_ScrollBarExtent:
        return width_of_scroll_bar;
    case PM_TabBarTabHSpace: // size_of_tab() has it
    case PM_TabBarTabVSpace:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabOverlap:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int lumen_style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
    if (hint == SH_FocusFrame_AboveWidget) {
        return 1; // the parents would clip it
    }
    if (hint == SH_ComboBox_Popup) {
        return 0; // a list below the box
    }
    if (hint == SH_ItemView_ShowDecorationSelected && is_tree(widget)) {
        return 1; // a row is chosen as a whole
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
