// Tabs over pages.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

class QFrame;
class QStackedWidget;
class gated_tab_bar;

// A tab and its page.
struct tab_item {
    int identifier = -1;
    int index = 0; // in its view
    QWidget* page = nullptr;
};

// Asks its delegate before any tab comes to the front, whoever wants it there. Interface thread.
class tab_view final : public QWidget {
public:
    static constexpr int bar_height = 40;

    // Asked with the item about to be selected; false refuses it.
    using delegate = std::function<bool(const tab_item& item)>;

    explicit tab_view(QWidget* parent);

    // A new tab behind the others; the first is in front. The view owns the item.
    tab_item* add_item();
    void set_delegate(delegate asked);
    // While this says no, what the user asks for is not heard, from wherever it comes.
    void serve_user_only_while(std::function<bool()> idle);
    void set_label(int index, const QString& label);
    // A picture before the label, by its name; an empty one takes it away.
    void set_icon(int index, const QString& name);
    QString label(int index) const;
    void selectTabViewItem(int index);
    // The user's way of bringing a tab to the front.
    void user_asks_for(int index);
    int selected() const;
    tab_item* item(int index) const { return items_[static_cast<std::size_t>(index)].get(); }
    gated_tab_bar* bar() const { return bar_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();

    gated_tab_bar* bar_;
    QFrame* frame_;
    QStackedWidget* pages_;
    std::vector<std::unique_ptr<tab_item>> items_;
    delegate asked_;
    std::function<bool()> idle_;
};
