// What both pages share: background, pages, controller box and the window's own buttons.
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <algorithm>
#include <array>

#include "app/controller.h"
#include "app/controller_box.h"
#include "app/gated_tab_bar.h"
#include "app/krview.h"
#include "app/main_window.h"
#include "app/pictures.h"
#include "app/placing.h"
#include "app/radio_matrix.h"
#include "app/spoken_parts.h"
#include "app/text_field.h"
#include "app/window_contents.h"
#include "app/window_extras.h"
#include "app/window_names.h"
#include "app/working_indicator.h"

namespace {

QPushButton* picture_button(QWidget* parent, const char* name, const QRect& where,
                            const char* picture, const QSize& size) {
    auto* button = make<QPushButton>(parent, name, where);
    button->setIcon(picture_icon(QLatin1String(picture)));
    button->setIconSize(size);
    return button;
}

text_field* page_caption(QWidget* parent, const QRect& where) {
    auto* caption = with_role(make<text_field>(parent, where), "pagecaption");
    caption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    caption->setWordWrap(true);
    caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    return caption;
}

void build_rail(controller& window, QWidget* view) {
    auto* icon = make<QLabel>(view, QRect(46, 14, 28, 28));
    icon->setPixmap(picture_icon(QStringLiteral("kestrelraid.png")).pixmap(28, 28));
    auto* name = with_role(make<text_field>(view, QRect(4, 46, 112, 16)), "programname");
    name->setAlignment(Qt::AlignCenter);
    name->set_value(QStringLiteral("Kestrel RAID"));
    tell_picture(icon, {});

    constexpr QSize plate(96, 96);
    window.mainguibutton =
        picture_button(view, "mainguibutton", QRect(12, 76, 96, 96), "RaidST_click.png", plate);
    window.showdiskguibutton = picture_button(view, "showdiskguibutton", QRect(12, 180, 96, 96),
                                              "SysInfo_normal.png", plate);
    for (QPushButton* button : {window.mainguibutton, window.showdiskguibutton}) {
        button->setProperty("kind", "page");
    }
    window.extras->page_captions[0] = page_caption(view, QRect(16, 134, 88, 34));
    window.extras->page_captions[1] = page_caption(view, QRect(16, 238, 88, 34));
}

void build_top(controller& window, QWidget* view) {
    window.controllerselectbox =
        make<controller_box>(view, "controllerselectbox", QRect(128, 20, 368, 36));
    constexpr QSize small(16, 16);
    window.refresh_button = picture_button(view, "refresh_button", QRect(504, 20, 136, 36),
                                           "refresh.png", QSize(20, 16));
    window.workingindicator =
        make<working_indicator>(view, "workingindicator", QRect(652, 26, 24, 24));
    window.minimizebutton =
        picture_button(view, "minimizebutton", QRect(704, 22, 32, 32), "minimise.png", small);
    window.closebutton =
        picture_button(view, "closebutton", QRect(744, 22, 32, 32), "close.png", small);
    for (QPushButton* button : {window.minimizebutton, window.closebutton}) {
        button->setProperty("kind", "window");
    }
}

// What is hidden is passed over, so one order serves both pages and both tabs.
void set_tab_order(controller& window) {
    QWidget* before = window.controllerselectbox;
    const auto then = [&before](QWidget* next) {
        QWidget::setTabOrder(before, next);
        before = next;
    };
    const std::array<QWidget*, 5> head = {window.refresh_button, window.mainguibutton,
                                          window.showdiskguibutton,
                                          window.extras->status.guide_link, window.tabview->bar()};
    std::for_each(head.begin(), head.end(), then);
    for (int row = 0; row < radio_matrix::rows; ++row) {
        then(window.raidconfigradiobutton->button(row));
    }
    const std::array<QWidget*, 10> rest = {window.cleardisk0button,
                                           window.cleardisk1button,
                                           window.confirmbutton,
                                           window.clearconfigbutton,
                                           window.rebuild0to1button,
                                           window.rebuild1to0button,
                                           window.tree,
                                           window.extras->warmbootbutton,
                                           window.minimizebutton,
                                           window.closebutton};
    std::for_each(rest.begin(), rest.end(), then);
}

} // namespace

void build_window_contents(controller& window) {
    install_spoken_parts();
    build_frame(window);
    QWidget* status = window.guitab->widget(0);
    build_status_page(window, status);
    build_configuration_tab(window, window.configuretab->page);
    build_rebuild_tab(window, window.rebuildtab->page);
    build_information_page(window, window.guitab->widget(1));
    set_tab_order(window);
    tell_pictures(window);
}

void build_frame(controller& window) {
    auto* view = outlet(new krview, "mainview");
    view->resize(main_window::width_of_content, main_window::height_of_content);
    view->setFocusPolicy(Qt::ClickFocus);
    window.mainview = view;
    build_top(window, view);
    build_rail(window, view);
    constexpr QRect pages(120, 72, 680, 558);
    window.guitab = make<QStackedWidget>(view, "guitab", pages);
    for (int page = 0; page < 2; ++page) {
        window.guitab->addWidget(new QWidget);
    }
}
