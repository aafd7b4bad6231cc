// Drops the user's input while the window must not take it.
#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QWidget;

// While work is under way or a panel is open, mouse, keys, wheel, touch and shortcuts reach only
// the topmost open panel and the widgets that are always served; everything else is dropped, not
// kept for later. The key of an action that is held down acts once. Interface thread.
class input_guard final : public QObject {
public:
    input_guard();

    // A widget that takes input during work; with `behind_panels` also while a panel is open.
    void always_serve(QWidget* widget, bool behind_panels);

    // Work begins and ends; may be nested.
    void begin_work();
    void end_work();
    bool working() const { return works_ > 0; }

    // A panel is on show, and closes; the one opened last is the topmost. What is served behind
    // panels is raised above its shade.
    void open_panel(QWidget* panel);
    void close_panel(QWidget* panel);
    QWidget* topmost_panel() const;

    // Whether an action of the user is to be carried out now.
    bool idle() const { return works_ == 0 && panels_.empty(); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct served {
        QPointer<QWidget> widget;
        bool behind_panels;
    };

    void keep_focus_in_panel(const QWidget* focused) const;
    bool serves(const QWidget* widget) const;

    int works_ = 0;
    std::vector<QPointer<QWidget>> panels_;
    std::vector<served> always_;
};
