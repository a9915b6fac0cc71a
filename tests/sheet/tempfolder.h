// TempFolder: a folder of a test's own, gone at its end.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <unistd.h>

namespace vorlane {

class TempFolder {
public:
    TempFolder() {
        static int32_t last = 0;
        path_ = std::filesystem::temp_directory_path() /
                ("vorlane-" + std::to_string(::getpid()) + "-" + std::to_string(++last));
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // With a separator at its end.
    std::string Path() const { return path_.string() + "/"; }

    // Makes a file of that many bytes, without taking room for them; gives its full name.
    std::string File(const std::string& name, uintmax_t bytes = 0) const {
        const std::filesystem::path file = path_ / name;
        std::ofstream(file).flush();
        std::filesystem::resize_file(file, bytes);
        return file.string();
    }

private:
    std::filesystem::path path_;
};

}  // namespace vorlane
