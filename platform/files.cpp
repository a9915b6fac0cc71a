#include "platform/files.h"

#include "platform/failure.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <system_error>

#if defined(__linux__)
#include <fcntl.h>
#include <sys/stat.h>
#endif

namespace vorlane::files {

namespace fs = std::filesystem;

fs::path ToPath(std::string_view path) {
    return {std::u8string(path.begin(), path.end())};
}

bool IsFile(std::string_view path) {
    std::error_code error;
    return fs::is_regular_file(ToPath(path), error);
}

bool IsFolder(std::string_view path) {
    std::error_code error;
    return fs::is_directory(ToPath(path), error);
}

uint64_t Length(std::string_view path) {
    std::error_code error;
    const uint64_t length = fs::file_size(ToPath(path), error);
    if (error) throw failures::FileNotFound(error.value());
    return length;
}

#if defined(__linux__)

Dates DatesOf(std::string_view path) {
    struct statx status {};
    if (statx(AT_FDCWD, ToPath(path).c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &status) != 0) {
        throw failures::FileNotFound(errno);
    }
    const auto seconds = [](const statx_timestamp& stamp) { return static_cast<std::time_t>(stamp.tv_sec); };
    if ((status.stx_mask & STATX_BTIME) != 0) return {seconds(status.stx_mtime), seconds(status.stx_btime)};
    return {seconds(status.stx_mtime),
            std::min({seconds(status.stx_mtime), seconds(status.stx_ctime), seconds(status.stx_atime)})};
}

#else

Dates DatesOf(std::string_view path) {
    std::error_code error;
    const auto written = fs::last_write_time(ToPath(path), error);
    if (error) throw failures::FileNotFound(error.value());
    const auto seconds = std::chrono::floor<std::chrono::seconds>(written.time_since_epoch() -
                                                                  fs::file_time_type::clock::now().time_since_epoch() +
                                                                  std::chrono::system_clock::now().time_since_epoch());
    return {seconds.count(), seconds.count()};
}

#endif

}  // namespace vorlane::files
