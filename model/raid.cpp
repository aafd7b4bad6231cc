#include "model/raid.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "util/bytes.h"

namespace {

constexpr std::string_view signature = "KR";
constexpr std::string_view vendor_tag = "Kestrel ";

} // namespace

bool raid_info::has_signature() const {
    return std::memcmp(bytes.data(), signature.data(), signature.size()) == 0;
}

std::uint64_t raid_info::raid_capacity() const {
    return load_le64(data() + capacity_offset);
}

void raid_info::clear_rebuild_flags() {
    store_le(data() + flags_offset, 0, 4);
}

raid_info create_raid_struct(int mode, int member, int flags, int extra,
                             unsigned long long capacity, const unsigned char* partner_serial,
                             const unsigned char* partner_model, bool large,
                             const unsigned char* time) {
    raid_info info;
    unsigned char* bytes = info.data();
    std::copy(signature.begin(), signature.end(), bytes);
    bytes[raid_info::mode_offset] = static_cast<unsigned char>(mode);
    bytes[raid_info::member_offset] = static_cast<unsigned char>(member);
    bytes[raid_info::flags_offset] = static_cast<unsigned char>(flags);
    store_le(bytes + raid_info::extra_offset, static_cast<std::uint32_t>(extra), 3);
    store_le(bytes + raid_info::capacity_offset, capacity, 8);
    std::copy_n(partner_model, model_size, bytes + raid_info::model_offset);
    std::copy_n(partner_serial, serial_size, bytes + raid_info::serial_offset);
    bytes[raid_info::large_offset] = large ? 1 : 0;
    std::copy(vendor_tag.begin(), vendor_tag.end(), bytes + raid_info::tag_offset);
    std::copy_n(time, raid_time_size, bytes + raid_info::time_offset);
    return info;
}

void GetTimeString(unsigned char* out, std::time_t now) {
    constexpr int digits = 14;
    std::fill_n(out, raid_time_size, static_cast<unsigned char>(0));
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) {
        return;
    }
    std::array<char, 80> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d%02d%02d%02d%02d%02d", local.tm_year + 1900,
                      local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    if (length == digits) {
        std::copy_n(text.begin(), digits, out);
    }
}

void GetTimeString(unsigned char* out) {
    GetTimeString(out, std::time(nullptr));
}
