#include "enclosure/cabinet.h"

#include "enclosure/names.h"
#include "enclosure/problem.h"

namespace enclosure {

namespace {

constexpr std::size_t longest_serial = 99;
constexpr std::size_t longest_product = 15;
constexpr std::chrono::milliseconds longest_restart = std::chrono::minutes(1);

void check_text(const std::string& text, std::size_t longest, const std::string& what) {
    if (text.size() > longest || printable(text) != text) {
        throw problem(what + " '" + printable(text) + "' does not fit; take at most " +
                      std::to_string(longest) + " printable ASCII characters");
    }
}

// As a host makes it of the chip's INQUIRY: the texts joined as they are, blanks at the end off.
std::string bridge_name(const std::string& product) {
    const std::string joined = std::string(inquiry_vendor) + inquiry_product(product);
    return joined.substr(0, joined.find_last_not_of(' ') + 1);
}

} // namespace

void check_settings(const cabinet_settings& settings) {
    check_name("enclosure", settings.name);
    check_text(settings.serial, longest_serial, "serial number");
    check_text(settings.product, longest_product, "product text");
    if (settings.restart_delay < std::chrono::milliseconds(0) ||
        settings.restart_delay > longest_restart) {
        throw problem("restart delay is out of range; take 0 to 60000 milliseconds");
    }
}

cabinet::cabinet(cabinet_settings settings)
    : settings_(std::move(settings)), faults_(bays_), chip_(bays_, faults_, settings_.product) {}

void cabinet::plug(std::uint32_t handle, moment now, const std::optional<kept_copy>& before) {
    returns_at_.reset();
    handle_ = handle;
    last_handle_ = handle;
    chip_.power_on(now, before);
}

void cabinet::settle_disks() {
    for (int port = 0; port < ports; ++port) {
        if (const std::shared_ptr<disk>& there = bays_.at(port)) {
            there->settle();
        }
    }
}

void cabinet::unplug() {
    chip_.power_off();
    settle_disks();
    handle_.reset();
    returns_at_.reset();
    export_number_.reset();
}

void cabinet::begin_export(std::uint32_t number, std::uint32_t handle, moment now) {
    export_number_ = number;
    plug(handle, now);
}

void cabinet::begin_restart(moment now) {
    chip_.power_off();
    handle_.reset();
    returns_at_ = now + settings_.restart_delay;
}

bool cabinet::cut_power(moment now) {
    begin_restart(now);
    bool lost = true;
    for (int port = 0; port < ports; ++port) {
        const std::shared_ptr<disk>& there = bays_.at(port);
        lost = (!there || there->lose_unflushed()) && lost;
    }
    return lost;
}

std::optional<kept_copy> cabinet::lasting_copy() const {
    return handle_ ? chip_.lasting_copy() : std::nullopt;
}

std::optional<bridge> cabinet::on_the_bus() const {
    if (!handle_ || export_number_) {
        return std::nullopt;
    }
    bridge seen;
    seen.handle = *handle_;
    seen.bus = settings_.bus;
    seen.name = bridge_name(settings_.product);
    if (settings_.bus == bus_kind::usb) {
        seen.vendor_id = settings_.vendor_id;
        seen.product_id = settings_.product_id;
        seen.location = settings_.location.value_or(0);
        seen.serial = settings_.serial;
    } else {
        seen.guid = settings_.guid.value_or(0);
    }
    return seen;
}

void cabinet::insert(int port, std::shared_ptr<disk> what) {
    bays_.insert(port, std::move(what));
    bay_changed();
}

std::shared_ptr<disk> cabinet::pull(int port) {
    std::shared_ptr<disk> taken = bays_.pull(port);
    if (taken) {
        taken->settle();
    }
    bay_changed();
    return taken;
}

void cabinet::bay_changed() {
    if (handle_) {
        chip_.disks_changed();
    }
}

} // namespace enclosure
