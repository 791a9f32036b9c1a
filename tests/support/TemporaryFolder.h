#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace lyrebrook {

/// A folder for one test's files, for its user alone, that goes away with them.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        static int made = 0;
        do {
            path = std::filesystem::temp_directory_path() /
                   ("lyrebrook-test-" + std::to_string(getpid()) + '-' + std::to_string(++made));
        } while (!std::filesystem::create_directory(path));
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    ~TemporaryFolder() {
        std::error_code leftAsItIs;
        std::filesystem::remove_all(path, leftAsItIs);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path path;
};

}  // namespace lyrebrook
