#include "tests/ui/fit.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <vector>

namespace {

struct painted_text {
    const QWidget* widget;
    QString text;
    QRect place; // in the window
};

QString name_of(const painted_text& one) {
    return QStringLiteral("%1 \"%2\"").arg(one.widget->objectName(), one.text);
}

QRect in_window(const QWidget& window, const QWidget* widget, const QRect& area) {
    return {widget->mapTo(&window, area.topLeft()), area.size()};
}

// A single line needs room for its ink alone: eastern fonts bring much air with them.
QRect text_area(const QLabel& label) {
    const int flags = static_cast<int>(label.alignment()) | Qt::TextDontClip;
    const QFontMetrics metrics = label.fontMetrics();
    if (label.wordWrap()) {
        return metrics.boundingRect(label.contentsRect(), flags | Qt::TextWordWrap, label.text());
    }
    QRect area =
        metrics.boundingRect(label.contentsRect(), flags | Qt::TextSingleLine, label.text());
    const QPoint centre = area.center();
    area.setHeight(metrics.tightBoundingRect(label.text()).height());
    area.moveCenter(centre);
    return area;
}

void look_at(const QWidget& window, const QLabel& label, std::vector<painted_text>& texts,
             QStringList& found) {
    const QRect area = text_area(label);
    const QRect room = label.contentsRect();
    const painted_text one{&label, label.text(), in_window(window, &label, area)};
    if (area.width() > room.width() || area.height() > room.height()) {
        found << QStringLiteral("%1 needs %2 x %3, has %4 x %5")
                     .arg(name_of(one))
                     .arg(area.width())
                     .arg(area.height())
                     .arg(room.width())
                     .arg(room.height());
    }
    texts.push_back(one);
}

void look_at(const QWidget& window, const QPushButton& button, std::vector<painted_text>& texts,
             QStringList& found) {
    constexpr int least_padding = 6;
    constexpr int gap = 4; // between icon and text
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + gap;
    const QString text = button.text().replace(QLatin1String("&&"), QLatin1String("&"));
    const int needed = button.fontMetrics().horizontalAdvance(text) + icon + 2 * least_padding;
    const painted_text one{&button, text, in_window(window, &button, button.rect())};
    if (needed > button.width()) {
        found << QStringLiteral("%1 needs %2, has %3")
                     .arg(name_of(one))
                     .arg(needed)
                     .arg(button.width());
    }
    texts.push_back(one);
}

void look_at(const QWidget& window, const QTabBar& bar, std::vector<painted_text>& texts,
             QStringList& found) {
    for (int tab = 0; tab < bar.count(); ++tab) {
        const QRect area = bar.tabRect(tab);
        const painted_text one{&bar, bar.tabText(tab), in_window(window, &bar, area)};
        const int icon = bar.tabIcon(tab).isNull() ? 0 : bar.iconSize().width();
        if (bar.fontMetrics().horizontalAdvance(one.text) + icon > area.width() ||
            !bar.rect().contains(area)) {
            found << name_of(one) + QStringLiteral(" has no room");
        }
        texts.push_back(one);
    }
}

} // namespace

QStringList misfits(const QWidget& window) {
    QStringList found;
    std::vector<painted_text> texts;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr) {
            if (!label->text().isEmpty()) {
                look_at(window, *label, texts, found);
            }
        } else if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
            if (!button->text().isEmpty()) {
                look_at(window, *button, texts, found);
            }
        } else if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
            look_at(window, *bar, texts, found);
        }
    }
    for (std::size_t first = 0; first < texts.size(); ++first) {
        for (std::size_t second = first + 1; second < texts.size(); ++second) {
            if (texts[first].place.intersects(texts[second].place)) {
                found << name_of(texts[first]) + QStringLiteral(" overlaps ") +
                             name_of(texts[second]);
            }
        }
    }
    return found;
}
