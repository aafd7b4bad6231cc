// The files in which the host service keeps its desk.
#pragma once

#include "enclosure/desk.h"
#include "enclosure/file_handle.h"

#include <filesystem>
#include <functional>
#include <string>

namespace enclosure {

// One file per enclosure and disk and one for the handle counter, each replaced as a whole: a
// crash leaves the former or the new content. One thread at a time.
class state_store {
public:
    using reporter = std::function<void(const std::string& line)>;

    // Makes the folder and its subfolders where they are missing, and takes it for this process.
    // Throws problem when it cannot, or another process has it. `report` receives one line for
    // every thing that cannot be read or written.
    state_store(std::filesystem::path folder, reporter report);

    // Where the image files belong.
    std::filesystem::path image_folder() const { return folder_ / "disks"; }

    // Fills a new desk. A file whose content is of no use is reported and kept aside under
    // another name; a disk that is left without its description is silent. Throws problem, and
    // has changed no other file, when a file or folder that is there cannot be read.
    void load(desk& to, moment now);

    // First makes lasting what its copy wrote, so that nothing counts as copied that may be lost.
    void save_enclosure(const cabinet& what);
    void remove_enclosure(const std::string& name);
    void save_disk(const disk& which);
    void remove_disk(const std::string& name);
    void save_next_handle(std::uint32_t next);

private:
    template<class Reader>
    void read_each(const std::filesystem::path& subfolder, Reader reader) const;
    template<class Reader> bool read_one(const std::filesystem::path& file, Reader reader) const;
    void load_disks(desk& to, const std::vector<desk::former_cabinet>& former) const;
    void set_aside(const std::filesystem::path& file, const std::string& why) const;
    void write(const std::filesystem::path& file, const std::string& text) const;
    void remove(const std::filesystem::path& file) const;
    std::filesystem::path enclosure_file(const std::string& name) const;
    std::filesystem::path disk_file(const std::string& name) const;

    std::filesystem::path folder_;
    reporter report_;
    file_handle lock_;
};

// $XDG_DATA_HOME/kestrelraid, or ~/.local/share/kestrelraid. Throws problem when neither
// variable names an absolute path.
std::filesystem::path usual_state_folder();

} // namespace enclosure
