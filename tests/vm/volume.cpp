#include "tests/vm/volume.h"

#include "tests/vm/shell.h"

#include "device/sg_handle.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

std::string contents_of(const std::string& name, std::size_t bytes) {
    std::seed_seq seed(name.begin(), name.end());
    std::mt19937 numbers(seed);
    std::string contents(bytes, '\0');
    for (char& one : contents) {
        one = static_cast<char>(numbers());
    }
    return contents;
}

std::string read_file(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

std::string block_device_of(const krchip& chip) {
    run("udevadm settle --timeout=60");
    const fs::path node = "/sys/class/scsi_generic/sg" +
                          std::to_string(chip.device & sg_most_minor) + "/device/block";
    if (!fs::exists(node)) {
        throw std::runtime_error("no volume at " + node.string());
    }
    return fs::directory_iterator(node)->path().filename().string();
}

std::uint64_t sectors_of(const std::string& block_device) {
    std::uint64_t sectors = 0;
    std::ifstream("/sys/class/block/" + block_device + "/size") >> sectors;
    return sectors;
}

void make_file_system(const std::string& block_device) {
    run("mkfs.ext4 -q -F /dev/" + block_device);
}

mounted::mounted(const std::string& block_device, bool read_only) {
    run("mount -t ext4 " + std::string(read_only ? "-o ro,noload " : "") + "/dev/" + block_device +
        " " + place());
}

mounted::~mounted() {
    try_run("umount " + place());
}

void known_files::add(int count, std::size_t bytes) {
    for (int i = 0; i < count; ++i) {
        const std::string name = "file-" + std::to_string(sizes_.size());
        std::ofstream file(fs::path(mounted::place()) / name, std::ios::binary);
        file << contents_of(name, bytes) << std::flush;
        if (!file) {
            throw std::runtime_error("cannot write " + name);
        }
        sizes_[name] = bytes;
    }
    run("sync");
}

std::vector<std::string> known_files::differing() const {
    std::vector<std::string> found;
    for (const auto& [name, bytes] : sizes_) {
        if (read_file(fs::path(mounted::place()) / name) != contents_of(name, bytes)) {
            found.push_back(name);
        }
    }
    return found;
}
