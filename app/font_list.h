// The list of the desktop's fonts, read beside the connection to the display.
#pragma once

#include <thread>

// Reads the list on a thread of its own from the start on, since it takes as long as the
// connection. Locale and environment must stay as they are meanwhile: the reader looks at both.
// Main thread.
class font_list {
public:
    // Sets the process's locale from the environment, as the toolkit would do a little later. Does
    // nothing more where the toolkit is about to change the environment, or no thread can be had:
    // the list is then read when the first text is measured.
    font_list();
    ~font_list();
    font_list(const font_list&) = delete;
    font_list& operator=(const font_list&) = delete;

    // Until the list has been read; before the first text is measured, which would read it again.
    void wait();

private:
    std::thread reading_;
};
