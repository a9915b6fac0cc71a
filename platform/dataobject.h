// DataObject: what a drag carries, as formats with their content. Format 1 is text, format 15 a list of files.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vorlane {

inline constexpr int16_t kFormatText = 1;
inline constexpr int16_t kFormatFiles = 15;

// What a drop does, and what a drag allows: a sum.
enum DropEffect : int32_t { kDropCopies = 1, kDropMoves = 2 };

class DataObject {
public:
    void Clear() { *this = DataObject{}; }

    bool GetFormat(int16_t format) const {
        return (format == kFormatText && hasText_) || (format == kFormatFiles && hasFiles_);
    }

    bool Empty() const { return !hasText_ && !hasFiles_; }

    // Declares the format, with no content yet.
    void SetData(int16_t format) {
        hasText_ = hasText_ || format == kFormatText;
        hasFiles_ = hasFiles_ || format == kFormatFiles;
    }

    const std::string& Text() const { return text_; }
    void SetText(std::string text) {
        text_ = std::move(text);
        hasText_ = true;
    }

    std::vector<std::string>& Files() { return files_; }
    const std::vector<std::string>& Files() const { return files_; }
    void SetFiles(std::vector<std::string> files) {
        files_ = std::move(files);
        hasFiles_ = true;
    }

private:
    bool hasText_ = false;
    bool hasFiles_ = false;
    std::string text_;
    std::vector<std::string> files_;
};

}  // namespace vorlane
