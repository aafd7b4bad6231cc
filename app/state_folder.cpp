// Files that must not be lost once they are said to be written.
#include <QByteArray>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "app/safety_copy.h"

namespace {

namespace fs = std::filesystem;

constexpr mode_t owner_only = 0600;
constexpr mode_t owner_only_folder = 0700;

// Throws what the last system call failed with.
[[noreturn]] void fail(const fs::path& path) {
    throw std::system_error(errno, std::generic_category(), path.string());
}

class open_file {
public:
    open_file(const fs::path& path, int flags)
        : path_(path), descriptor_(::open(path.c_str(), flags | O_CLOEXEC, owner_only)) {
        if (descriptor_ < 0) {
            fail(path_);
        }
    }
    ~open_file() { ::close(descriptor_); }
    open_file(const open_file&) = delete;
    open_file& operator=(const open_file&) = delete;

    const fs::path& path() const { return path_; }

    void write(std::string_view text) const {
        while (!text.empty()) {
            const ssize_t written = ::write(descriptor_, text.data(), text.size());
            if (written < 0 && errno != EINTR) {
                fail(path_);
            }
            text.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
        }
    }

    void sync() const {
        if (::fsync(descriptor_) != 0) {
            fail(path_);
        }
    }

private:
    const fs::path path_;
    const int descriptor_;
};

// A relative folder in the environment counts as none.
fs::path folder_in_environment(const char* name) {
    const fs::path path = qgetenv(name).toStdString();
    return path.is_absolute() ? path : fs::path();
}

fs::path state_folder() {
    fs::path state = folder_in_environment("XDG_STATE_HOME");
    if (state.empty()) {
        const fs::path home = folder_in_environment("HOME");
        if (home.empty()) {
            throw std::system_error(ENOENT, std::generic_category(), "HOME");
        }
        state = home / ".local" / "state";
    }
    return state / "kestrelraid";
}

// Each folder that is missing, made lasting in the one above it.
void make_folder(const fs::path& folder) {
    if (!fs::exists(folder.parent_path())) {
        make_folder(folder.parent_path());
    }
    if (::mkdir(folder.c_str(), owner_only_folder) == 0) {
        open_file(folder.parent_path(), O_RDONLY | O_DIRECTORY).sync();
    } else if (errno != EEXIST) {
        fail(folder);
    }
}

std::string base_name(std::time_t now) {
    std::array<char, 64> text{};
    std::tm local{};
    if (localtime_r(&now, &local) == nullptr) {
        return "records";
    }
    const std::size_t length =
        std::strftime(text.data(), text.size(), "records-%Y%m%d-%H%M%S", &local);
    return {text.data(), length};
}

// No copy ever takes the place of another: the second of one second gets a number.
fs::path path_of(const fs::path& folder, const std::string& base, int number) {
    return folder / (base + (number == 1 ? "" : "-" + std::to_string(number)) + ".txt");
}

// Whoever comes first has the name; nothing is there to be looked at beforehand.
std::unique_ptr<open_file> create_new(const fs::path& folder, const std::string& base) {
    for (int number = 1;; ++number) {
        try {
            return std::make_unique<open_file>(path_of(folder, base, number),
                                               O_WRONLY | O_CREAT | O_EXCL);
        } catch (const std::system_error& trouble) {
            if (trouble.code() != std::errc::file_exists) {
                throw;
            }
        }
    }
}

void write_new(const fs::path& folder, const std::string& base, const std::string& text) {
    const std::unique_ptr<open_file> file = create_new(folder, base);
    try {
        file->write(text);
        file->sync();
    } catch (...) {
        std::error_code ignored;
        fs::remove(file->path(), ignored);
        throw;
    }
}

} // namespace

std::string copies_in_state_folder::keep(const std::string& text, std::time_t now) {
    try {
        const fs::path folder = state_folder();
        make_folder(folder);
        write_new(folder, base_name(now), text);
        open_file(folder, O_RDONLY | O_DIRECTORY).sync();
        return {};
    } catch (const std::exception& trouble) {
        return trouble.what();
    }
}
