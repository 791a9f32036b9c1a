#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <functional>
#include <ostream>

#include "platform/forms/FormInstance.h"
#include "support/ScriptedDesktop.h"

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace lyrebrook {

/// What happened since the last look, in order.
inline QStringList diary;
inline QStringList takeDiary() {
    return std::exchange(diary, {});
}

/// A desk without forms and with an empty diary.
class AtDesk : public testing::Test {
  protected:
    AtDesk() { diary.clear(); }

    ScriptedDesktop desk;
};

}  // namespace lyrebrook
