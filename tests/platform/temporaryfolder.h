// A folder of a test's own, gone at the end of the test.
#pragma once

#include "platform/files.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>

namespace vorlane {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "vorlane-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(files::ToPath(path_), ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }
    // With a separator at its end.
    std::string WithSeparator() const { return path_ + "/"; }
    std::string At(std::string_view name) const { return path_ + "/" + std::string(name); }

    // Makes a file and gives its path.
    std::string File(std::string_view name, std::string_view content = "") const {
        std::ofstream(files::ToPath(At(name)), std::ios::binary) << content;
        return At(name);
    }
    // Makes a file of that many bytes, without taking room for them, and gives its path.
    std::string Sparse(std::string_view name, uintmax_t bytes) const {
        std::filesystem::resize_file(files::ToPath(File(name)), bytes);
        return At(name);
    }
    std::string Folder(std::string_view name) const {
        std::filesystem::create_directories(files::ToPath(At(name)));
        return At(name);
    }
    std::string Read(std::string_view name) const {
        std::ifstream file(files::ToPath(At(name)), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::string path_;
};

}  // namespace vorlane
