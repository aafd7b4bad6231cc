// A disk: who it says it is, and its sectors.
#pragma once

#include "enclosure/disk_image.h"
#include "enclosure/disk_io.h"
#include "enclosure/identify.h"

#include <filesystem>
#include <optional>
#include <string>

namespace enclosure {

class disk {
public:
    // A new disk with its image file at `image`. Throws problem when its size is impossible or
    // the file cannot be made.
    static disk create(std::string name, const identify_block& identity,
                       const std::filesystem::path& image);

    // A disk whose image file exists. One whose image is missing or too short is silent: it
    // answers nothing, and missing() says why.
    static disk open(std::string name, const identify_block& identity,
                     const std::filesystem::path& image);

    const std::string& name() const { return name_; }
    const identify_block& identity() const { return identity_; }
    std::uint64_t sectors() const { return sectors_; }
    const std::string& missing() const { return missing_; }
    bool answers() const { return image_.has_value(); }

    // The image, for work on a disk that answers.
    disk_image& image() { return *image_; }

    bool perform(const io_request& request);

private:
    disk(std::string name, const identify_block& identity);

    std::string name_;
    identify_block identity_;
    std::uint64_t sectors_;
    std::optional<disk_image> image_;
    std::string missing_;
};

} // namespace enclosure
