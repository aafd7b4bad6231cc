#include "enclosure/state_store.h"

#include "enclosure/names.h"
#include "enclosure/problem.h"
#include "enclosure/state_json.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <set>
#include <system_error>
#include <vector>

namespace enclosure {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longest_file = 65536; // bytes

// For its owner alone, as are the folders above it that are missing.
void make_folder(const fs::path& folder) {
    std::error_code trouble;
    if (fs::is_directory(folder, trouble)) {
        return;
    }
    if (folder.has_parent_path()) {
        make_folder(folder.parent_path());
    }
    const bool made = ::mkdir(folder.c_str(), 0700) == 0;
    const bool came_meanwhile = !made && errno == EEXIST && fs::is_directory(folder, trouble);
    if (!made && !came_meanwhile) {
        throw problem("cannot make folder " + folder.string() + ": " + reason() +
                      "; make it or set XDG_DATA_HOME");
    }
}

// It may be an older one that others can look into. Where that cannot be helped, the files in it
// are still their owner's alone.
void close_to_others(const fs::path& folder) {
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, ignored);
}

file_handle take(const fs::path& file) {
    file_handle lock(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!lock) {
        throw problem("cannot write " + file.string() + ": " + reason() +
                      "; make its folder writable");
    }
    if (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        throw problem("another krenclosured uses " + file.parent_path().string() +
                      "; end it or set XDG_DATA_HOME");
    }
    return lock;
}

// What cannot be looked at may be there and sound, so it must not be taken for absent.
[[noreturn]] void refuse(const fs::path& what, const std::string& why) {
    throw problem("cannot read " + what.string() + ": " + why +
                  "; make it readable and start again");
}

bool is_there(const fs::path& file) {
    std::error_code trouble;
    const bool found = fs::exists(file, trouble);
    if (trouble) {
        refuse(file, trouble.message());
    }
    return found;
}

// At most one byte more than a state file may have. Nothing when it is no file.
std::optional<std::string> content_of(const fs::path& file) {
    const file_handle handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!handle || ::fstat(handle.get(), &status) != 0) {
        refuse(file, reason());
    }
    if (!S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    std::string text(longest_file + 1, '\0');
    std::size_t length = 0;
    while (length < text.size()) {
        const ssize_t now = ::read(handle.get(), text.data() + length, text.size() - length);
        if (now < 0 && errno != EINTR) {
            refuse(file, reason());
        }
        if (now == 0) {
            break;
        }
        length += static_cast<std::size_t>(std::max<ssize_t>(now, 0));
    }
    text.resize(length);
    return text;
}

// Those that are called by a name and `extension`, in order.
std::vector<fs::path> files_in(const fs::path& folder, const std::string& extension) {
    std::vector<fs::path> files;
    std::error_code trouble;
    for (fs::directory_iterator at(folder, trouble), end; !trouble && at != end;
         at.increment(trouble)) {
        if (at->path().extension() == extension && is_name(at->path().stem().string())) {
            files.push_back(at->path());
        }
    }
    if (trouble) {
        refuse(folder, trouble.message());
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool write_whole(const file_handle& file, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t now = ::write(file.get(), text.data() + done, text.size() - done);
        if (now < 0 && errno != EINTR) {
            return false;
        }
        done += static_cast<std::size_t>(std::max<ssize_t>(now, 0));
    }
    return true;
}

// A renamed or removed file stays so after a crash only when its folder is on the disk too.
bool sync_folder(const fs::path& folder) {
    const file_handle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return handle && ::fsync(handle.get()) == 0;
}

bool replace(const fs::path& file, const std::string& text) {
    std::string hidden = ".";
    hidden.append(file.filename().string()).append(".new");
    const fs::path fresh = file.parent_path() / hidden;
    const file_handle handle(
        ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600));
    return handle && write_whole(handle, text) && ::fsync(handle.get()) == 0 &&
           ::rename(fresh.c_str(), file.c_str()) == 0 && sync_folder(file.parent_path());
}

} // namespace

state_store::state_store(fs::path folder, reporter report)
    : folder_(std::move(folder)), report_(std::move(report)) {
    make_folder(folder_ / "enclosures");
    make_folder(folder_ / "disks");
    close_to_others(folder_);
    lock_ = take(folder_ / "lock");
}

fs::path state_store::enclosure_file(const std::string& name) const {
    return folder_ / "enclosures" / (name + ".json");
}

fs::path state_store::disk_file(const std::string& name) const {
    return folder_ / "disks" / (name + ".json");
}

template<class Reader> bool state_store::read_one(const fs::path& file, Reader reader) const {
    const std::optional<std::string> content = content_of(file);
    try {
        if (!content || content->empty() || content->size() > longest_file) {
            throw problem("it is empty, too long or no file");
        }
        reader(*content);
        return true;
    } catch (const problem& trouble) {
        set_aside(file, trouble.what());
        return false;
    }
}

template<class Reader> void state_store::read_each(const fs::path& subfolder, Reader reader) const {
    for (const fs::path& file : files_in(subfolder, ".json")) {
        read_one(file, [&](const std::string& text) { reader(file.stem().string(), text); });
    }
}

void state_store::set_aside(const fs::path& file, const std::string& why) const {
    fs::path aside = file.string() + ".unreadable";
    for (int i = 2; is_there(aside); ++i) {
        aside = file.string() + ".unreadable-" + std::to_string(i);
    }
    std::error_code trouble;
    fs::rename(file, aside, trouble);
    report_("cannot use " + file.string() + ": " + why +
            (trouble ? "; remove it" : "; kept as " + aside.filename().string()));
}

// A disk without a usable description keeps its name, its bay and its image all the same.
void state_store::load_disks(desk& to, const std::vector<desk::former_cabinet>& former) const {
    read_each(image_folder(), [&](const std::string& name, const std::string& text) {
        to.restore_disk(name, disk_from_json(text));
    });
    std::set<std::string> names;
    for (const fs::path& image : files_in(image_folder(), ".img")) {
        names.insert(image.stem().string());
    }
    for (const desk::former_cabinet& one : former) {
        std::copy_if(one.disks.begin(), one.disks.end(), std::inserter(names, names.end()),
                     [](const std::string& name) { return is_name(name); });
    }
    for (const std::string& name : names) {
        if (!to.disks().contains(name)) {
            to.restore_unknown_disk(name, "there is no usable " + disk_file(name).string());
        }
    }
    for (const auto& [name, which] : to.disks()) {
        if (!which->missing().empty()) {
            report_("disk '" + name + "' counts as absent: " + which->missing() +
                    "; put it back and start the service again");
        }
    }
}

void state_store::load(desk& to, moment now) {
    std::vector<desk::former_cabinet> former;
    read_each(folder_ / "enclosures", [&](const std::string& name, const std::string& text) {
        former.push_back(enclosure_from_json(text, name));
    });
    load_disks(to, former);
    const fs::path counter = folder_ / "handles.json";
    if (is_there(counter)) {
        read_one(counter, [&](const std::string& text) {
            to.restore_next_handle(next_handle_from_json(text));
        });
    }
    // Should the counter be lost, what is known to have been used stays used.
    for (const desk::former_cabinet& one : former) {
        to.restore_next_handle(one.last_handle + 1);
    }
    for (const desk::former_cabinet& one : former) {
        to.restore_enclosure(one, now);
    }
}

void state_store::write(const fs::path& file, const std::string& text) const {
    if (!replace(file, text)) {
        report_("cannot write " + file.string() + ": " + reason() +
                "; this change lasts until the service ends");
    }
}

void state_store::remove(const fs::path& file) const {
    if ((::unlink(file.c_str()) != 0 && errno != ENOENT) || !sync_folder(file.parent_path())) {
        report_("cannot remove " + file.string() + ": " + reason() + "; remove it by hand");
    }
}

void state_store::save_enclosure(const cabinet& what) {
    write(enclosure_file(what.settings().name), enclosure_to_json(what, what.lasting_copy()));
}

void state_store::remove_enclosure(const std::string& name) {
    remove(enclosure_file(name));
}

void state_store::save_disk(const disk& which) {
    write(disk_file(which.name()), disk_to_json(which));
}

void state_store::remove_disk(const std::string& name) {
    remove(disk_file(name));
}

void state_store::save_next_handle(std::uint32_t next) {
    write(folder_ / "handles.json", next_handle_to_json(next));
}

fs::path usual_state_folder() {
    const char* const data = std::getenv("XDG_DATA_HOME"); // NOLINT(concurrency-mt-unsafe): start
    if (data != nullptr && fs::path(data).is_absolute()) {
        return fs::path(data) / "kestrelraid";
    }
    const char* const home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): start
    if (home == nullptr || !fs::path(home).is_absolute()) {
        throw problem("no place for the enclosures: neither XDG_DATA_HOME nor HOME is an absolute "
                      "path; set one");
    }
    return fs::path(home) / ".local" / "share" / "kestrelraid";
}

} // namespace enclosure
