#include "app/safety_copy.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <array>

#include "app/display_text.h"
#include "app/plain_text.h"
#include "model/change_plan.h"
#include "model/krchip.h"
#include "util/functions.h"

namespace {

std::string readable_time(std::time_t now) {
    std::array<char, 64> text{};
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) {
        return "unknown";
    }
    const std::size_t length =
        std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S %z", &local);
    return {text.data(), length};
}

const char* name_of(array_change what) {
    switch (what) {
    case array_change::create:
        return "create an array";
    case array_change::clear_array:
        return "delete the array";
    case array_change::clear_disk0:
        return "wipe disk 1";
    case array_change::clear_disk1:
        return "wipe disk 2";
    case array_change::rebuild0to1:
        return "copy disk 1 onto disk 2";
    case array_change::rebuild1to0:
        return "copy disk 2 onto disk 1";
    }
    return "";
}

std::string hexadecimal(std::uint64_t value, int digits) {
    return QString::number(value, 16).rightJustified(digits, QLatin1Char('0')).toStdString();
}

std::string bridge_of(const controller_t& identity) {
    if (identity.firewire) {
        return "FireWire, GUID " + hexadecimal(identity.guid, 16);
    }
    return "USB " + hexadecimal(identity.vendor_id, 4) + ":" + hexadecimal(identity.product_id, 4) +
           ", location " + hexadecimal(identity.location_id & 0xFFFFFFFFU, 8);
}

std::string text_of(const std::string& bytes) {
    return one_line(device_text(bytes)).toStdString();
}

// Lines of 16 bytes, as common tools for hexadecimal dumps read them back.
std::string dump(const raid_info& sector) {
    constexpr std::size_t line_length = 16;
    const QByteArray bytes(reinterpret_cast<const char*>(sector.data()), sector_size);
    std::string text;
    for (std::size_t at = 0; at < sector_size; at += line_length) {
        const QByteArray line = bytes.mid(static_cast<qsizetype>(at), line_length);
        text += hexadecimal(at, 8) + ": " + line.toHex(' ').toStdString() + "\n";
    }
    return text;
}

std::string sha256(const raid_info& sector) {
    const QByteArray bytes(reinterpret_cast<const char*>(sector.data()), sector_size);
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

std::string disk_text(const krdisk& disk, const char* bay) {
    std::string text = std::string("\n") + bay + "\n";
    if (disk.present == 0) {
        return text + "none\n";
    }
    text += "Model: " + text_of(disk.model) + "\n";
    text += "Serial: " + text_of(disk.serial) + "\n";
    text += "Capacity: " + inttostring(disk.capacity) + " sectors\n";
    text += "Record at sector: " + inttostring(disk.metadata_lba()) + "\n";
    text += std::string("Record: ") +
            (disk.raid_info_raw.has_signature() ? "valid" : "none, or not readable") + "\n";
    text += "SHA-256 of the record: " + sha256(disk.raid_info_raw) + "\n";
    return text + dump(disk.raid_info_raw);
}

} // namespace

std::string safety_copy_text(const change_plan& plan, const krchip& chip, std::time_t now) {
    std::string text = "Kestrel RAID safety copy 1\n";
    text += "Made: " + readable_time(now) + "\n";
    text += std::string("Before: ") + name_of(plan.what) + "\n";
    text += "Enclosure: " + one_line(plan.enclosure).toStdString() + "\n";
    text += "Bridge: " + bridge_of(plan.controller) + "\n";
    return text + disk_text(chip.disks[0], "Disk 1") + disk_text(chip.disks[1], "Disk 2");
}
