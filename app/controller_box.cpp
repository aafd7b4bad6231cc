#include "app/controller_box.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "app/action_tip.h"

controller_box::controller_box(QWidget* parent) : QComboBox(parent), caption_(new QLabel(parent)) {
    caption_->setBuddy(this);
    caption_->hide();
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    lineEdit()->setReadOnly(true);
    lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
    lineEdit()->setAttribute(Qt::WA_TransparentForMouseEvents);
    view()->setTextElideMode(Qt::ElideMiddle);
    connect(this, &QComboBox::activated, this, [this](int) {
        lineEdit()->setCursorPosition(0);
        set_tip(this, currentText());
        if (chosen_) {
            chosen_();
        }
    });
}

// The toolkit takes a box's text for its name, and has a label say what it is.
void controller_box::set_name(const QString& name) {
    setAccessibleName(name);
    caption_->setText(name);
    lineEdit()->setAccessibleName(name);
    view()->setAccessibleName(name);
}

void controller_box::set_delegate(std::function<void()> chosen) {
    chosen_ = std::move(chosen);
}

void controller_box::remove_all() {
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    clear();
    identities_.clear();
    set_text(text);
}

void controller_box::add_entry(const QString& text, const controller_t& identity) {
    const QString shown = currentText();
    const int selected = currentIndex();
    const QSignalBlocker quiet(this);
    addItem(text);
    identities_.push_back(identity);
    setCurrentIndex(selected); // the first entry would select itself
    set_text(shown);
}

void controller_box::set_placeholder(const QString& text) {
    lineEdit()->setPlaceholderText(text);
}

void controller_box::set_text(const QString& text) {
    setEditText(text);
    lineEdit()->setCursorPosition(0);
    set_tip(this, text);
}

void controller_box::open() {
    setFocus(Qt::ShortcutFocusReason);
    showPopup();
}

void controller_box::select(int entry) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(entry);
    set_text(itemText(entry));
}

void controller_box::show_entry_of(const controller_t& identity) {
    if (const int entry = entry_of(identity); entry >= 0) {
        select(entry);
    }
}

QString controller_box::text_of(const controller_t& identity) const {
    const int entry = entry_of(identity);
    return entry >= 0 ? itemText(entry) : currentText();
}

int controller_box::entry_of(const controller_t& identity) const {
    const auto found = std::find(identities_.begin(), identities_.end(), identity);
    return found == identities_.end() ? -1 : static_cast<int>(found - identities_.begin());
}

const controller_t& controller_box::identity(int entry) const {
    return identities_[static_cast<std::size_t>(entry)];
}

// Nobody edits the text, so the window's keys come before the editor's.
bool controller_box::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->ignore();
        return true;
    }
    return QComboBox::event(event);
}

// A wheel turned over the box must not switch bridges.
void controller_box::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

// Anywhere in the box is as good as its arrow.
void controller_box::mousePressEvent(QMouseEvent* event) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    QMouseEvent on_arrow(event->type(), arrow.center(), event->globalPosition(), event->button(),
                         event->buttons(), event->modifiers(), event->pointingDevice());
    QComboBox::mousePressEvent(&on_arrow);
}
