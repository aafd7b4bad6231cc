// Message panels.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/plan_text.h"

class QWidget;
class input_guard;

enum class panel_kind { warning, error, attention };

// Texts are UTF-8 and shown as they are, never as markup.
struct panel_request {
    panel_kind kind = panel_kind::attention;
    std::string title;
    std::string message;
    std::vector<std::string> buttons;             // one or two; the first is the default
    std::optional<plan_view> plan = std::nullopt; // of the change that is asked about
    std::vector<std::string> lines = {};          // one below the other under the message
};

inline constexpr int panel_default = 1;
inline constexpr int panel_second = 0;
inline constexpr int panel_failed = -2;

// Any answer but these two grants what was asked for.
constexpr bool is_yes(int answer) {
    return answer != panel_second && answer != panel_failed;
}

// Who answers panels: the user, or a test. Interface thread.
class panel_answers {
public:
    virtual ~panel_answers() = default;
    // The first button (1) or the second (0); -2: the panel could not be shown.
    virtual int ask(const panel_request& request) = 0;
};

// Opens a panel over the window's contents and waits for its answer, serving the window's events
// meanwhile. Escape and closing give the second button, or the only one. Interface thread.
int run_panel(QWidget* window, input_guard& guard, const panel_request& request);

// Answers the topmost open panel as Escape does; nothing without one. Interface thread.
void dismiss_topmost_panel(const input_guard& guard);

// Panels over a window that may come later.
class window_panels final : public panel_answers {
public:
    explicit window_panels(input_guard& guard) : guard_(guard) {}
    void show_over(QWidget* window) { window_ = window; }
    int ask(const panel_request& request) override;

private:
    input_guard& guard_;
    QWidget* window_ = nullptr;
};
