// Two bays with small disks that can be put into any state again and again.
#pragma once

#include "enclosure/bays.h"
#include "enclosure/scenario.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/temporary_folder.h"
#include "tests/fuzz/check.h"

#include <array>
#include <filesystem>
#include <memory>
#include <string>

class small_bays {
public:
    static constexpr std::uint64_t sectors = 40'000; // of each disk, enough for a span
    using records = std::array<enclosure::sector_data, enclosure::ports>;

    small_bays() {
        for (int port = 0; port < enclosure::ports; ++port) {
            const std::string name = port == 0 ? "a" : "b";
            both_.insert(
                port, std::make_shared<enclosure::disk>(enclosure::disk::create(
                          name, enclosure::build_identify(label_of(sectors, name)), image(port))));
        }
    }

    enclosure::bays& both() { return both_; }

    // Disks without content but for the records of that state.
    void put(enclosure::scenario state) {
        for (int port = 0; port < enclosure::ports; ++port) {
            require(both_.at(port)->image().clear(0, sectors), "an image can be cleared");
        }
        enclosure::write_records(state, *both_.at(0), *both_.at(1));
    }

    void put_record(int port, const enclosure::sector_data& record) {
        require(both_.at(port)->image().write(record_lba, record), "an image can be written");
    }

    records both_records() const {
        records found{};
        for (int port = 0; port < enclosure::ports; ++port) {
            require(both_.at(port)->image().read(record_lba, found[static_cast<std::size_t>(port)]),
                    "an image can be read");
        }
        return found;
    }

    void check_sizes() const {
        for (int port = 0; port < enclosure::ports; ++port) {
            require(std::filesystem::file_size(image(port)) == sectors * enclosure::sector_size,
                    "an image keeps its size");
        }
    }

private:
    static constexpr std::uint64_t record_lba = sectors - 15;

    std::filesystem::path image(int port) const {
        return folder_.path() / (port == 0 ? "a.img" : "b.img");
    }

    temporary_folder folder_;
    enclosure::bays both_;
};
