// An open file that closes itself.
#pragma once

#include <unistd.h>

#include <utility>

namespace enclosure {

class file_handle {
public:
    file_handle() = default;
    explicit file_handle(int fd) : fd_(fd) {}
    ~file_handle() { reset(); }
    file_handle(file_handle&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    file_handle& operator=(file_handle&& other) noexcept {
        if (this != &other) {
            reset();
            fd_ = std::exchange(other.fd_, -1);
        }
        return *this;
    }
    file_handle(const file_handle&) = delete;
    file_handle& operator=(const file_handle&) = delete;

    int get() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }

private:
    void reset() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }

    int fd_ = -1;
};

} // namespace enclosure
