#include "enclosure/kernel_sg_nodes.h"

#include <fcntl.h>
#include <libudev.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace enclosure {

namespace {

constexpr unsigned sg_major = 21;

struct udev_release {
    void operator()(udev* what) const { udev_unref(what); }
    void operator()(udev_enumerate* what) const { udev_enumerate_unref(what); }
    void operator()(udev_device* what) const { udev_device_unref(what); }
};
template<class What> using udev_pointer = std::unique_ptr<What, udev_release>;

// The kernel numbers what it adds to sysfs in ascending order. 0: the folder has gone.
std::uint64_t number_of_folder(const std::string& path) {
    struct stat folder {};
    return ::stat(path.c_str(), &folder) == 0 ? folder.st_ino : 0;
}

std::string folder_of(std::uint32_t minor) {
    return "/sys/class/scsi_generic/sg" + std::to_string(minor);
}

// A signal would end the wait and have the command made twice.
class undisturbed {
public:
    undisturbed() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &former_);
    }
    ~undisturbed() { pthread_sigmask(SIG_SETMASK, &former_, nullptr); }
    undisturbed(const undisturbed&) = delete;
    undisturbed& operator=(const undisturbed&) = delete;

private:
    sigset_t former_{};
};

udev_pointer<udev_enumerate> search_in(udev* context) {
    udev_pointer<udev_enumerate> search(udev_enumerate_new(context));
    const bool made = search &&
                      udev_enumerate_add_match_subsystem(search.get(), "scsi_generic") >= 0 &&
                      udev_enumerate_add_match_property(search.get(), "KRRAID_BRIDGE", "1") >= 0 &&
                      udev_enumerate_scan_devices(search.get()) >= 0;
    return made ? std::move(search) : nullptr;
}

// What has gone meanwhile is not missed.
void add_node_at(udev* context, const char* path, sg_node_list& list) {
    const udev_pointer<udev_device> device(udev_device_new_from_syspath(context, path));
    const std::uint64_t arrival = number_of_folder(path);
    if (device && arrival != 0) {
        list.nodes.push_back({minor(udev_device_get_devnum(device.get())), arrival});
    }
    list.complete = list.complete && (device || arrival == 0);
}

} // namespace

sg_node_list kernel_sg_nodes::chosen() {
    const udev_pointer<udev> context(udev_new());
    const udev_pointer<udev_enumerate> search = context ? search_in(context.get()) : nullptr;
    if (!search) {
        return {{}, false};
    }
    sg_node_list list;
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(search.get())) {
        add_node_at(context.get(), udev_list_entry_get_name(entry), list);
    }
    std::sort(list.nodes.begin(), list.nodes.end(),
              [](const sg_node& a, const sg_node& b) { return a.arrival < b.arrival; });
    return list;
}

opened_node kernel_sg_nodes::open(const sg_node& node) {
    const std::string path = "/dev/sg" + std::to_string(node.minor);
    opened_node opened{file_handle(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)), 0};
    if (!opened.file) {
        return {{}, errno};
    }
    struct stat file {};
    const bool is_the_node = ::fstat(opened.file.get(), &file) == 0 && S_ISCHR(file.st_mode) &&
                             file.st_rdev == makedev(sg_major, node.minor);
    if (!is_the_node || number_of_folder(folder_of(node.minor)) != node.arrival) {
        return {{}, ENODEV};
    }
    return opened;
}

int kernel_sg_nodes::command(const file_handle& node, sg_io_hdr& request) {
    const undisturbed calm;
    return ::ioctl(node.get(), SG_IO, &request) == 0 ? 0 : errno;
}

void kernel_sg_nodes::pause() {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
}

} // namespace enclosure
