#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace lyrebrook {

/// A whole file in memory, private: writing changes the copy, never the file. If another program cuts the file short
/// afterwards, the missing pages read as zeros instead of ending the process. Throws RuntimeError.
class MappedFile {
  public:
    explicit MappedFile(const std::filesystem::path& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::span<std::byte> bytes() const { return bytes_; }

  private:
    std::span<std::byte> bytes_;
};

}  // namespace lyrebrook
