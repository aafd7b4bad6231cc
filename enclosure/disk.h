// A disk: who it says it is, and its sectors.
#pragma once

#include "enclosure/disk_image.h"
#include "enclosure/disk_io.h"
#include "enclosure/identify.h"
#include "enclosure/unflushed_writes.h"

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

    // A disk of which nothing is known but its name, for the reason `why`: silent, as above.
    static disk unknown(std::string name, std::string why);

    const std::string& name() const { return name_; }
    const identify_block& identity() const { return identity_; }
    std::uint64_t sectors() const { return sectors_; }
    const std::string& missing() const { return missing_; }
    bool answers() const { return image_.has_value(); }

    // The image, for work on a disk that answers.
    disk_image& image() { return *image_; }

    bool perform(const io_request& request);

    // It had time to make everything lasting before its power went.
    void settle() { unflushed_.settle(); }

    // Its power went at once: what was written since the last flush is as if it had not been.
    // False: the file system refused.
    bool lose_unflushed();

private:
    disk(std::string name, const identify_block& identity);
    bool write(const io_request& request);
    bool flush();

    std::string name_;
    identify_block identity_;
    std::uint64_t sectors_;
    std::optional<disk_image> image_;
    std::string missing_;
    unflushed_writes unflushed_;
};

} // namespace enclosure
