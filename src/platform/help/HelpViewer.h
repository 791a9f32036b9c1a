#pragma once

#include <QString>
#include <cstdint>

namespace lyrebrook {

enum class HelpCommand : std::int32_t { topic = 1, contentsFinder = 11 };

/// The program's help in one window beside the screens: contents at the left, the topic at the right, and a search
/// through all topics. Program's thread, with a QApplication.
class HelpViewer {
  public:
    /// Shows the window, which is made at the first use and again after the person closed it. `contentsFinder` opens at
    /// the contents; `topic` opens the topic with the number `context`, or the contents when the file has no such
    /// topic. A file that is missing or can't be read is told in the window.
    static void show(const QString& file, HelpCommand command, std::int32_t context);
};

}  // namespace lyrebrook
