// The choice of the array to create.
#pragma once

#include <QButtonGroup>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

class QFrame;
class QLabel;
class QRadioButton;
class text_field;

// Four rows, one of them chosen; the first at the start. Interface thread.
class radio_matrix final : public QWidget {
public:
    static constexpr int rows = 4;

    explicit radio_matrix(QWidget* parent);

    // Is called when the user has chosen a row; false puts the row before it back.
    void set_delegate(std::function<bool()> chosen);
    void set_row_text(int row, const QString& name, const QString& meaning);
    // The tag on the row of the array that exists.
    void set_in_use_text(const QString& text);
    // Which row that is; none takes the tag away. Has nothing to do with the choice.
    void set_in_use(std::optional<int> row);
    // -1: no row.
    int selected_row() const;
    QWidget* button(int row) const;
    // The user's way of choosing.
    void click_row(int row);
    // Without the delegate; -1 takes the choice away.
    void select_row(int row);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct row_widgets {
        QFrame* frame;
        QRadioButton* button;
        text_field* name;
        text_field* meaning;
        text_field* in_use;
    };

    row_widgets make_row(int row);
    static void put_behind_name(const row_widgets& row);
    void take_choice(int row);
    void show_choice();

    QButtonGroup group_;
    std::vector<row_widgets> rows_;
    std::function<bool()> chosen_;
    QString in_use_text_;
    int settled_ = -1; // the row that counts
};
