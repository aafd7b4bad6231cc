// Notices on the desktop, outside the window.
#pragma once

#include <functional>
#include <string>

// What a person is told whose window is out of sight. Texts are UTF-8 and shown as they are, never
// as markup.
struct notice {
    std::string title;
    std::string text;       // may have several lines
    std::string open_label; // of the action that shows the window
    bool urgent = false;
};

// The desktop's notices. Nothing here fails, and only hand_over() waits: where there is no such
// service, nobody sees them. Interface thread.
class notices {
public:
    virtual ~notices() = default;
    // `opened` is called when somebody chooses a notice that is on show, with the token by which
    // the desktop lets the window come to the front; it may be empty.
    virtual void when_opened(std::function<void(const std::string& token)> opened) = 0;
    // The number, from 1, that names the notice to close().
    virtual int show(const notice& what) = 0;
    // Takes a notice of show() away, whether the desktop has shown it already or not.
    virtual void close(int shown) = 0;
    // The program is about to leave, and what has been asked for has to be on its way. Takes half a
    // second at most.
    virtual void hand_over() = 0;
};
