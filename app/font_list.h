// The list of the desktop's fonts, read beside the connection to the display.
#pragma once

#include <thread>

// Reads the list on a thread of its own from the start on: it takes as long as the connection, and
// neither needs the other. Main thread.
class font_list {
public:
    font_list();
    ~font_list();
    font_list(const font_list&) = delete;
    font_list& operator=(const font_list&) = delete;

    // Until the list has been read; before the first text is measured, which would read it again.
    void wait();

private:
    std::thread reading_;
};
