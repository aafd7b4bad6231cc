// What a direction of the rebuild would do, shown on the disks' cards before it is chosen.
#pragma once

#include <QObject>
#include <QString>
#include <array>

#include "app/window_extras.h"

class QAbstractButton;

// Interface thread.
class direction_evidence final : public QObject {
public:
    // The button of each source port, and the cards of both.
    direction_evidence(std::array<QAbstractButton*, 2> buttons, std::array<rebuild_card, 2> cards,
                       QObject* parent);

    // The words for the disk that is read and the one that is written to.
    void set_words(const QString& stays, const QString& overwritten);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void show_attention();
    void show_direction(int source);
    void show_nothing();

    std::array<QAbstractButton*, 2> buttons_;
    std::array<rebuild_card, 2> cards_;
    QString stays_;
    QString overwritten_;
    std::array<bool, 2> under_mouse_{};
    std::array<bool, 2> focused_{};
    bool shown_ = false; // cards that others have marked are left alone
};
