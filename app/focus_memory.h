// Keeps the keyboard's focus from getting lost.
#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QWidget;
class input_guard;

// A control that is disabled or hidden loses the focus. It waits nearby then, and goes back as soon
// as the control can take it again, unless the user has gone on in the meantime. Interface thread.
class focus_memory final : public QObject {
public:
    // The focus waits at the first of the places that is usable. They and the guard outlive this.
    focus_memory(const input_guard& guard, std::vector<QWidget*> waiting_places);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void moved(QWidget* from, QWidget* to);
    void leave_held();
    void wait();
    void give_back();
    bool waits_at(const QObject* place) const;

    const input_guard& guard_;
    const std::vector<QWidget*> places_;
    QPointer<QWidget> held_; // the control that has the focus
    QPointer<QWidget> lost_; // the control that is to have it again
};
