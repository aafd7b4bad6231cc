#include "tests/power/chip_bench.h"

#include <stdexcept>

#include "enclosure/chip.h"
#include "enclosure/volume_layout.h"

namespace {

// Passes everything on and holds the rules of a copy.
class write_watch final : public enclosure::disk_io {
public:
    write_watch(enclosure::disk_io& disks, const std::optional<enclosure::copy_order>& allowed)
        : disks_(disks), allowed_(allowed) {}

    bool perform(const enclosure::io_request& request) override {
        if (request.kind == enclosure::io_kind::write && !is_allowed(request)) {
            throw std::logic_error("the chip writes outside the target of the copy");
        }
        return disks_.perform(request);
    }

private:
    bool is_allowed(const enclosure::io_request& request) const {
        return allowed_ && request.port == 1 - allowed_->source &&
               request.lba + request.count <= allowed_->sectors;
    }

    enclosure::disk_io& disks_;
    const std::optional<enclosure::copy_order> allowed_;
};

enclosure::port_view view_of(const std::optional<memory_disk>& disk) {
    if (!disk) {
        return {};
    }
    enclosure::port_view view{true, enclosure::identify_sectors(disk->identify),
                              enclosure::identity_of(disk->identify), std::nullopt};
    if (const auto address = enclosure::record_address(view.sectors)) {
        view.record = enclosure::read_record(sector_of(*disk, *address));
    }
    return view;
}

void require(bool done) {
    if (!done) {
        throw std::runtime_error("an image cannot be read or written");
    }
}

} // namespace

chip_bench::chip_bench() {
    const std::array<identify_block, 2> labels = {first_disk(), second_disk()};
    for (std::size_t port = 0; port < disks_.size(); ++port) {
        const std::string name = port == 0 ? "a" : "b";
        disks_[port] = std::make_shared<enclosure::disk>(
            enclosure::disk::create(name, labels[port].bytes(), folder_.path() / name));
    }
}

chip_reading chip_bench::read(const disk_pair& disks) {
    const enclosure::port_views views = {view_of(disks[0]), view_of(disks[1])};
    chip_reading reading{enclosure::decide_volume(views), enclosure::decide_copy(views), 0};
    if (reading.presented.sectors != 0) {
        reading.read_port =
            enclosure::piece_at(enclosure::layout_of(views, reading.presented), 0, 1).port;
    }
    return reading;
}

void chip_bench::lay_down(std::size_t port, const disk_content& wanted) {
    enclosure::disk_image& image = disks_.at(port)->image();
    disk_content& laid = laid_.at(port);
    for (const auto& [lba, unused] : laid) {
        require(wanted.contains(lba) || image.clear(lba, 1));
    }
    for (const auto& [lba, data] : wanted) {
        const auto found = laid.find(lba);
        require((found != laid.end() && found->second == data) || image.write(lba, data));
    }
    laid = wanted;
}

void chip_bench::take_up(std::size_t port, disk_content& to, const disk_content& from_source) {
    const enclosure::disk_image& image = disks_.at(port)->image();
    for (const auto& [lba, unused] : from_source) {
        if (lba < image.sectors()) {
            to.try_emplace(lba); // may have been copied
        }
    }
    for (auto& [lba, data] : to) {
        require(image.read(lba, data));
    }
    std::erase_if(to, [](const auto& entry) { return entry.second == sector_bytes{}; });
    laid_.at(port) = to;
}

void chip_bench::power_on(disk_pair& disks) {
    drop_empty_sectors(disks);
    enclosure::bays bays;
    for (std::size_t port = 0; port < disks.size(); ++port) {
        if (disks[port]) {
            lay_down(port, disks[port]->sectors);
            bays.insert(static_cast<int>(port), disks_[port]);
        }
    }
    const std::optional<enclosure::copy_order> expected = read(disks).copy;
    write_watch watch(bays, expected);
    enclosure::fault_stack path(watch);
    enclosure::chip chip(bays, path, "Duo");
    chip.copy().set_rate(enclosure::mirror_copy::unlimited, enclosure::moment{0});
    chip.power_on(enclosure::moment{0});
    while (chip.advance(enclosure::moment{0})) {
    }
    const auto& ended = chip.copy().progress();
    if (ended.has_value() != expected.has_value() ||
        (ended && (ended->source != expected->source || ended->done != expected->sectors))) {
        throw std::logic_error("the chip has made another copy than its reading says");
    }
    if (expected) {
        const auto source = static_cast<std::size_t>(expected->source);
        take_up(1 - source, disks[1 - source]->sectors, disks[source]->sectors);
    }
}
