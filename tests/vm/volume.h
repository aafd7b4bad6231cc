// The disk that the kernel has made of an enclosure's volume.
#pragma once

#include "model/krchip.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Waits until udev has made it ready: "sdb".
std::string block_device_of(const krchip& chip);

// Sectors of 512 bytes; 0 when there is none.
std::uint64_t sectors_of(const std::string& block_device);

// Makes an ext4 file system on it.
void make_file_system(const std::string& block_device);

// Mounted for a scope.
class mounted {
public:
    explicit mounted(const std::string& block_device, bool read_only = false);
    ~mounted();
    mounted(const mounted&) = delete;
    mounted& operator=(const mounted&) = delete;

    static std::string place() { return "/mnt"; }
};

// Files with contents that can be made again from their names.
class known_files {
public:
    // In the mounted file system; lasting when it returns.
    void add(int count, std::size_t bytes);

    // The names of those that are not there byte for byte.
    std::vector<std::string> differing() const;
    std::size_t count() const { return sizes_.size(); }

private:
    std::map<std::string, std::size_t> sizes_;
};
