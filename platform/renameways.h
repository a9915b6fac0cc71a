// Ways to give a file another name without overwriting what is there, the safest first. Not every file system knows
// them all.
#pragma once

#include <filesystem>
#include <optional>

namespace vorlane::files {

// The system's error, 0 for none; nothing when the file system doesn't know the way, and nothing has happened.
using RenameAnswer = std::optional<int>;

// In one step, which fails when something is at the new name.
RenameAnswer RenameAtOnce(const std::filesystem::path& from, const std::filesystem::path& to);
// By a second name, which fails when something is there; then the first one goes. Not for folders.
RenameAnswer RenameByLink(const std::filesystem::path& from, const std::filesystem::path& to);
// Over an empty file or folder of its own, which takes the new name first, and fails when something is there.
RenameAnswer RenameOverPlaceholder(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace vorlane::files
