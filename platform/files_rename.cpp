#include "platform/failure.h"
#include "platform/files.h"
#include "platform/renameways.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#if defined(__linux__)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vorlane::files {

namespace fs = std::filesystem;

namespace {

bool Occupied(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

// Makes an empty folder or file, in one step that fails when something is there. Gives the system's error.
int Occupy(const fs::path& path, bool folder) {
    if (folder) {
        std::error_code error;
        return fs::create_directory(path, error) ? 0 : error ? error.value() : EEXIST;
    }
    std::FILE* const file = std::fopen(path.string().c_str(), "wx");
    if (file == nullptr) return errno;
    std::fclose(file);
    return 0;
}

int RenameWithoutOverwriting(const fs::path& from, const fs::path& to) {
    for (const auto way : {RenameAtOnce, RenameByLink, RenameOverPlaceholder}) {
        if (const RenameAnswer answer = way(from, to)) return *answer;
    }
    return ENOSYS;
}

}  // namespace

RenameAnswer RenameAtOnce([[maybe_unused]] const fs::path& from, [[maybe_unused]] const fs::path& to) {
#if defined(__linux__) && defined(RENAME_NOREPLACE)
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
    const bool unknown = errno == EINVAL || errno == ENOSYS;  // to the file system, or to the kernel
    if (!unknown) return errno;
#endif
    return {};
}

// A link is moved itself, wherever it leads.
RenameAnswer RenameByLink([[maybe_unused]] const fs::path& from, [[maybe_unused]] const fs::path& to) {
#if defined(__linux__)
    if (linkat(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), 0) == 0) {
        if (unlink(from.c_str()) == 0) return 0;
        const int error = errno;
        unlink(to.c_str());
        return error;
    }
    const bool unknown = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK;
    if (!unknown) return errno;
#endif
    return {};
}

RenameAnswer RenameOverPlaceholder(const fs::path& from, const fs::path& to) {
    if (!Occupied(from)) return ENOENT;
    std::error_code error;
    if (const int refused = Occupy(to, fs::is_directory(fs::symlink_status(from, error)))) return refused;
    fs::rename(from, to, error);
    std::error_code stays;
    if (error && fs::is_empty(to, stays)) fs::remove(to, stays);  // what another program has put there stays
    return error.value();
}

void Rename(std::string_view from, std::string_view to) {
    const fs::path source = ToPath(from);
    const int error = RenameWithoutOverwriting(source, ToPath(to));
    switch (error) {
        case 0:
            return;
        case EEXIST:
            throw failures::FileExists(error);
        case ENOENT:
        case ENOTDIR:
            throw Occupied(source) ? failures::PathNotFound(error) : failures::FileNotFound(error);
        default:
            throw failures::AccessDenied(error);
    }
}

}  // namespace vorlane::files
