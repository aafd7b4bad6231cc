#include "tests/support/scripted_library.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace {

std::string arguments(std::initializer_list<std::string> values) {
    std::string text = "(";
    for (const std::string& value : values) {
        text += text.size() > 1 ? ", " + value : value;
    }
    return text + ")";
}

template<class Number> std::string number(Number value) {
    return std::to_string(value);
}

library_call call_of(const std::string& name, std::uint32_t device,
                     std::initializer_list<std::string> values) {
    library_call call;
    call.name = name;
    call.text = name + arguments(values);
    call.device = device;
    return call;
}

library_call at(library_call call, std::uint64_t lba, std::int32_t port) {
    call.lba = lba;
    call.port = port;
    return call;
}

sector_bytes record_of(const void* record, std::uint32_t length) {
    sector_bytes bytes{};
    std::memcpy(bytes.data(), record, std::min<std::size_t>(length, bytes.size()));
    return bytes;
}

// Counts the calls that are under way.
class flight {
public:
    explicit flight(std::atomic<int>& count) : count_(count), alone_(count_.fetch_add(1) == 0) {}
    ~flight() { --count_; }
    flight(const flight&) = delete;
    flight& operator=(const flight&) = delete;
    bool alone() const { return alone_; }

private:
    std::atomic<int>& count_;
    bool alone_;
};

} // namespace

scripted_library::~scripted_library() {
    finish();
}

void scripted_library::expect(const std::string& text, library_answer answer,
                              std::optional<sector_bytes> record) {
    const mutex_scope lock(mutex_);
    script_.expect({text, std::move(answer), record});
}

void scripted_library::finish() {
    const mutex_scope lock(mutex_);
    script_.finish();
    bridges_ = {};
    interventions_.clear();
    every_ = nullptr;
}

void scripted_library::with_bridges(const std::function<void(memory_enclosure&)>& change) {
    const mutex_scope lock(mutex_);
    change(bridges_);
}

void scripted_library::add_bridge(std::uint32_t device, std::optional<memory_disk> disk0,
                                  std::optional<memory_disk> disk1) {
    memory_bridge bridge;
    bridge.disks = {std::move(disk0), std::move(disk1)};
    const mutex_scope lock(mutex_);
    bridges_.bridges.emplace_back(device, std::move(bridge));
}

sector_bytes scripted_library::sector(std::uint32_t device, int port, std::uint64_t lba) {
    const mutex_scope lock(mutex_);
    return bridges_.sector(device, port, lba);
}

void scripted_library::answer_nth(const std::string& beginning, int nth, library_answer answer) {
    const mutex_scope lock(mutex_);
    interventions_.push_back({beginning, nth, false, std::move(answer), nullptr, nullptr});
}

void scripted_library::answer_all(const std::string& beginning, library_answer answer) {
    const mutex_scope lock(mutex_);
    interventions_.push_back({beginning, 1, true, std::move(answer), nullptr, nullptr});
}

void scripted_library::on_nth(const std::string& beginning, int nth, std::function<void()> action) {
    const mutex_scope lock(mutex_);
    interventions_.push_back({beginning, nth, false, {}, std::move(action), nullptr});
}

void scripted_library::replace_nth(const std::string& beginning, int nth, answerer instead) {
    const mutex_scope lock(mutex_);
    interventions_.push_back({beginning, nth, false, {}, nullptr, std::move(instead)});
}

void scripted_library::forget_plans() {
    const mutex_scope lock(mutex_);
    interventions_.clear();
}

void scripted_library::on_call(hook every) {
    const mutex_scope lock(mutex_);
    every_ = std::move(every);
}

std::vector<scripted_library::intervention> scripted_library::due(const library_call& call) {
    const mutex_scope lock(mutex_);
    std::vector<intervention> now;
    for (auto planned = interventions_.begin(); planned != interventions_.end();) {
        if (!call.text.starts_with(planned->beginning) || --planned->countdown > 0) {
            ++planned;
            continue;
        }
        now.push_back(*planned);
        planned = planned->always ? std::next(planned) : interventions_.erase(planned);
    }
    return now;
}

library_answer scripted_library::answer(const library_call& call) {
    std::optional<library_answer> instead;
    answerer answered_by;
    for (const intervention& planned : due(call)) {
        if (planned.action) {
            planned.action();
        }
        if (planned.answer) {
            instead = planned.answer;
        }
        if (planned.instead) {
            answered_by = planned.instead;
        }
    }
    if (instead) {
        return *instead;
    }
    const mutex_scope lock(mutex_);
    if (answered_by) {
        return answered_by(call, bridges_);
    }
    return script_.begun() ? script_.play(call) : bridges_.answer(call);
}

std::int32_t scripted_library::run(const library_call& call, void* buffer, std::size_t size,
                                   std::int32_t* count) {
    std::optional<flight> alone;
    if (call.per_device() && !alone.emplace(in_flight_).alone()) {
        ADD_FAILURE() << call.text << " while another call is in flight";
    }
    if (const hook every = every_call()) {
        every(call);
    }
    const library_answer given = answer(call);
    std::copy_n(given.bytes.begin(), std::min(given.bytes.size(), size),
                static_cast<unsigned char*>(buffer));
    if (count != nullptr && given.count) {
        *count = *given.count;
    }
    log_.add(from_library, call.text + " = " + std::to_string(given.status));
    return given.status;
}

scripted_library::hook scripted_library::every_call() {
    const mutex_scope lock(mutex_);
    return every_;
}

std::int32_t scripted_library::getDeviceList(void* list, std::int32_t* count) {
    const library_call call = call_of("getDeviceList", 0, {"count " + std::to_string(*count)});
    return run(call, list, list_size, count);
}

std::int32_t scripted_library::openConnection(std::uint32_t device) {
    return run(call_of("openConnection", device, {hex(device)}));
}

std::int32_t scripted_library::closeConnection(std::uint32_t device) {
    return run(call_of("closeConnection", device, {hex(device)}));
}

std::int32_t scripted_library::krGetRaidInfo(std::uint32_t device, void* buffer,
                                             std::uint32_t length, std::uint64_t lba,
                                             std::int32_t port, std::int32_t lba48) {
    return run(at(call_of("krGetRaidInfo", device,
                          {hex(device), number(length), number(lba), number(port), number(lba48)}),
                  lba, port),
               buffer, length);
}

std::int32_t scripted_library::krGetRaidInfoFW(std::uint32_t device, void* buffer,
                                               std::uint32_t length, std::uint64_t lba,
                                               std::int32_t port) {
    return run(at(call_of("krGetRaidInfoFW", device,
                          {hex(device), number(length), number(lba), number(port)}),
                  lba, port),
               buffer, length);
}

std::int32_t scripted_library::krSetRaidInfo(std::uint32_t device, const void* record,
                                             std::uint32_t length, std::uint64_t lba,
                                             std::int32_t port, std::int32_t lba48) {
    const sector_bytes sector = record_of(record, length);
    library_call call = at(call_of("krSetRaidInfo", device,
                                   {hex(device), sketch(sector), number(length), number(lba),
                                    number(port), number(lba48)}),
                           lba, port);
    call.record = sector;
    return run(call);
}

std::int32_t scripted_library::krSetRaidInfoFW(std::uint32_t device, const void* record,
                                               std::uint32_t length, std::uint64_t lba,
                                               std::int32_t port) {
    const sector_bytes sector = record_of(record, length);
    library_call call =
        at(call_of("krSetRaidInfoFW", device,
                   {hex(device), sketch(sector), number(length), number(lba), number(port)}),
           lba, port);
    call.record = sector;
    return run(call);
}

std::int32_t scripted_library::krGetRebuildStatus(std::uint32_t device, void* status,
                                                  std::uint32_t length) {
    return run(call_of("krGetRebuildStatus", device, {hex(device), number(length)}), status,
               length);
}

std::int32_t scripted_library::krGetDiskIdentify(std::uint32_t device, void* buffer,
                                                 std::uint32_t length, std::int32_t port) {
    return run(at(call_of("krGetDiskIdentify", device, {hex(device), number(length), number(port)}),
                  0, port),
               buffer, length);
}

std::int32_t scripted_library::krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                                             std::uint32_t length, std::uint32_t address) {
    library_call call =
        call_of("krGetRegister", device, {hex(device), number(size), number(length), hex(address)});
    call.address = address;
    return run(call, buffer, length);
}

std::int32_t scripted_library::krWarmBoot(std::uint32_t device) {
    return run(call_of("krWarmBoot", device, {hex(device)}));
}

std::int32_t scripted_library::krFlushHDDCache(std::uint32_t device, std::int32_t port) {
    return run(at(call_of("krFlushHDDCache", device, {hex(device), number(port)}), 0, port));
}
