// The access library of the enclosures in this process, with a record of every sector written.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

#include "tests/support/enclosure_library.h"

// Writes lines: "write LBA HEX" before a sector is written, then "read LBA" once it was read back
// or "failed LBA" when it could not be written; the model lets nothing come in between. Any thread.
class journal_library final : public enclosure_library {
public:
    using enclosure_library::enclosure_library;

    // Before any thread calls; without a file nothing is written down.
    void write_into(const std::string& file);
    // A sector that is there from the beginning, as if it had been written now.
    void know(std::uint64_t lba, const void* record);
    // A line of others, with its end. Any thread.
    void note(const std::string& line) const;
    // Runs `action` within the nth call that reads or writes a sector. Before any thread calls.
    void on_nth(int nth, std::function<void()> action);

    std::int32_t krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48) override;
    std::int32_t krGetRaidInfoFW(std::uint32_t device, void* buffer, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port) override;
    std::int32_t krSetRaidInfo(std::uint32_t device, const void* record, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48) override;
    std::int32_t krSetRaidInfoFW(std::uint32_t device, const void* record, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port) override;

private:
    std::int32_t was_read(std::uint64_t lba, std::int32_t status);
    void will_write(std::uint64_t lba, const void* record);
    std::int32_t was_written(std::uint64_t lba, std::int32_t status);

    int file_ = -1;
    std::atomic<int> calls_left_{0};
    std::function<void()> action_;
};
