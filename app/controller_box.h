// The controller selection box.
#pragma once

#include <QComboBox>
#include <functional>
#include <vector>

#include "util/library.h"

class QLabel;

// Its text is not its selection: the text outlives the entries. Nothing is ever selected but by
// the user or by select(). Interface thread.
class controller_box final : public QComboBox {
public:
    explicit controller_box(QWidget* parent);

    // What it is a list of.
    void set_name(const QString& name);
    // Is called when the user has chosen an entry.
    void set_delegate(std::function<void()> chosen);
    void remove_all();
    // Each entry remembers whom it stands for.
    void add_entry(const QString& text, const controller_t& identity);
    // What stands faintly in the box while nothing else does.
    void set_placeholder(const QString& text);
    // Takes the focus and shows the list, as a key does it.
    void open();
    // What stands in the box; no entry is touched.
    void set_text(const QString& text);
    // Selects without telling the delegate.
    void select(int entry);
    // Selects the entry of that bridge, without telling the delegate; no such entry: as it was.
    void show_entry_of(const controller_t& identity);
    // The entry of that bridge; without one, what stands in the box.
    QString text_of(const controller_t& identity) const;
    // Of an entry that is there.
    const controller_t& identity(int entry) const;

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    int entry_of(const controller_t& identity) const;

    QLabel* caption_; // never seen
    std::vector<controller_t> identities_;
    std::function<void()> chosen_;
};
