#include "tests/storm/journal_library.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t sector_bytes = 512;

std::string digits_of(const void* record) {
    constexpr const char* digits = "0123456789abcdef";
    const auto* bytes = static_cast<const unsigned char*>(record);
    std::string text;
    for (std::size_t i = 0; i < sector_bytes; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 0x0F];
    }
    return text;
}

} // namespace

void journal_library::write_into(const std::string& file) {
    file_ = ::open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (file_ < 0) {
        std::perror(file.c_str());
        std::exit(1); // NOLINT(concurrency-mt-unsafe): before any thread
    }
}

void journal_library::know(std::uint64_t lba, const void* record) {
    const std::string address = std::to_string(lba);
    note("write " + address + " " + digits_of(record) + "\nread " + address + "\n");
}

void journal_library::on_nth(int nth, std::function<void()> action) {
    action_ = std::move(action);
    calls_left_ = nth;
}

void journal_library::note(const std::string& line) const {
    if (file_ >= 0 && ::write(file_, line.data(), line.size()) != std::ssize(line)) {
        std::perror("journal");
        std::abort();
    }
}

void journal_library::will_write(std::uint64_t lba, const void* record) {
    if (file_ >= 0) {
        note("write " + std::to_string(lba) + " " + digits_of(record) + "\n");
    }
    if (--calls_left_ == 0) {
        action_();
    }
}

std::int32_t journal_library::was_written(std::uint64_t lba, std::int32_t status) {
    if (status != 0) {
        note("failed " + std::to_string(lba) + "\n");
    }
    return status;
}

std::int32_t journal_library::was_read(std::uint64_t lba, std::int32_t status) {
    note("read " + std::to_string(lba) + "\n");
    if (--calls_left_ == 0) {
        action_();
    }
    return status;
}

std::int32_t journal_library::krGetRaidInfo(std::uint32_t device, void* buffer,
                                            std::uint32_t length, std::uint64_t lba,
                                            std::int32_t port, std::int32_t lba48) {
    return was_read(lba,
                    enclosure_library::krGetRaidInfo(device, buffer, length, lba, port, lba48));
}

std::int32_t journal_library::krGetRaidInfoFW(std::uint32_t device, void* buffer,
                                              std::uint32_t length, std::uint64_t lba,
                                              std::int32_t port) {
    return was_read(lba, enclosure_library::krGetRaidInfoFW(device, buffer, length, lba, port));
}

std::int32_t journal_library::krSetRaidInfo(std::uint32_t device, const void* record,
                                            std::uint32_t length, std::uint64_t lba,
                                            std::int32_t port, std::int32_t lba48) {
    will_write(lba, record);
    return was_written(lba,
                       enclosure_library::krSetRaidInfo(device, record, length, lba, port, lba48));
}

std::int32_t journal_library::krSetRaidInfoFW(std::uint32_t device, const void* record,
                                              std::uint32_t length, std::uint64_t lba,
                                              std::int32_t port) {
    will_write(lba, record);
    return was_written(lba, enclosure_library::krSetRaidInfoFW(device, record, length, lba, port));
}
