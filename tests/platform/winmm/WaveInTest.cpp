#include "platform/winmm/waveIn.h"

#include <cstring>

#include "platform/sound/SoundDesk.h"
#include "platform/winmm/MixerDesk.h"

namespace lyrebrook {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// An input opened on a virtual card at which somebody sings.
class WaveIn : public testing::Test {
  protected:
    WaveIn() { sound.card->selectRecording(RecordingLine::microphone); }
    ~WaveIn() override { waveInClose(input); }

    void open(const WAVEFORMATEX& format = trackFormat()) {
        EXPECT_EQ(waveInOpen(input, {.format = format, .window = window.handle()}), MMSYSERR_NOERROR);
        EXPECT_THAT(ListeningWindow::listen(), Contains(message(MM_WIM_OPEN)));
    }

    void sing(const Sound& song) {
        sound.card->feed(CardLine::microphone, song);
        sound.card->advance(static_cast<Frames>(song.size()));
    }

    WAVEHDR queued(std::vector<std::byte>& bytes) { return {.lpData = bytes.data(), .dwBufferLength = toSize(bytes)}; }
    MMRESULT add(WAVEHDR& header) {
        EXPECT_EQ(waveInPrepareHeader(input, header, sizeof header), MMSYSERR_NOERROR);
        return waveInAddBuffer(input, header, sizeof header);
    }
    WindowMessage message(std::int32_t number, const WAVEHDR* header = nullptr) const {
        return {number, static_cast<WPARAM>(input), reinterpret_cast<LPARAM>(header)};
    }
    static std::int32_t toSize(const std::vector<std::byte>& bytes) { return static_cast<std::int32_t>(bytes.size()); }

    SoundDesk sound;
    ListeningWindow window;
    HWAVEIN input = 0;
};

TEST_F(WaveIn, TheInputIsOpenOnlyWhileSomebodyWantsIt) {
    EXPECT_EQ(waveInGetNumDevs(), 1);
    EXPECT_FALSE(sound.card->inputOpen());
    open();
    EXPECT_TRUE(sound.card->inputOpen());
    EXPECT_EQ(waveInClose(input), MMSYSERR_NOERROR);
    EXPECT_FALSE(sound.card->inputOpen());
    EXPECT_THAT(ListeningWindow::listen(), ElementsAre(message(MM_WIM_CLOSE)));
}

TEST_F(WaveIn, BuffersAreFilledInTurnAndComeBack) {
    open();
    waveInStart(input);
    sing(ramp(100));  // for nobody
    std::vector<std::byte> bytes(12 * bytesPerFrame);
    WAVEHDR first = queued(bytes);
    first.dwBufferLength = 5 * bytesPerFrame;
    WAVEHDR second = queued(bytes);
    second.lpData += first.dwBufferLength;
    second.dwBufferLength = 7 * bytesPerFrame;
    add(first);
    add(second);
    EXPECT_EQ(waveInClose(input), WAVERR_STILLPLAYING);
    const Sound song = ramp(10);
    sing({song.begin(), song.begin() + 4});
    sing({song.begin() + 4, song.end()});
    waveInStop(input);
    EXPECT_THAT(ListeningWindow::listen(), ElementsAre(message(MM_WIM_DATA, &first), message(MM_WIM_DATA, &second)));
    EXPECT_EQ(first.dwBytesRecorded, first.dwBufferLength);
    EXPECT_EQ(second.dwBytesRecorded, 5 * bytesPerFrame);
    EXPECT_EQ(second.dwFlags, WHDR_DONE | WHDR_PREPARED);
    Sound filled(10);
    std::memcpy(filled.data(), bytes.data(), 10 * bytesPerFrame);
    EXPECT_EQ(filled, song);
}

TEST_F(WaveIn, ResetGivesEverythingBack) {
    open();
    std::vector<std::byte> bytes(400);
    WAVEHDR header = queued(bytes);
    add(header);
    EXPECT_EQ(waveInAddBuffer(input, header, sizeof header), WAVERR_STILLPLAYING);
    EXPECT_EQ(waveInUnprepareHeader(input, header, sizeof header), WAVERR_STILLPLAYING);
    waveInReset(input);
    EXPECT_THAT(ListeningWindow::listen(), ElementsAre(message(MM_WIM_DATA, &header)));
    EXPECT_EQ(header.dwBytesRecorded, 0);
    EXPECT_EQ(waveInUnprepareHeader(input, header, sizeof header), MMSYSERR_NOERROR);
    EXPECT_EQ(waveInAddBuffer(input, header, sizeof header), WAVERR_UNPREPARED);
    EXPECT_EQ(waveInPrepareHeader(input, header, 31), MMSYSERR_INVALPARAM);
    EXPECT_EQ(waveInReset(0), MMSYSERR_INVALHANDLE);
}

WAVEFORMATEX formatOf(std::int16_t channels, std::int32_t rate, std::int16_t bits) {
    const auto align = static_cast<std::int16_t>(channels * bits / 8);
    return {1, channels, rate, rate * align, align, bits, 0};
}

struct Converted {
    WAVEFORMATEX format;
    std::vector<int> bytes;
};

TEST_F(WaveIn, EveryFormatOfTheTableIsMadeOfTheOne) {
    for (const Converted& each :
         {Converted{formatOf(1, 11025, 8), {128 + 15}}, Converted{formatOf(2, 11025, 8), {128 + 25, 128 + 5}},
          Converted{formatOf(1, 22050, 16), {0, 10, 0, 20}},
          Converted{formatOf(2, 22050, 16), {0, 20, 0, 0, 0, 30, 0, 10}},
          Converted{formatOf(1, 44100, 8), {128 + 5, 128 + 15, 128 + 15, 128 + 25}}}) {
        open(each.format);
        std::vector<std::byte> bytes(16);
        WAVEHDR header = queued(bytes);
        add(header);
        waveInStart(input);
        sing({{0x0A00, 0}, {0x1E00, 0}, {0x1E00, 0}, {0x1E00, 0x1400}});
        waveInStop(input);
        std::vector<int> found;
        for (std::int32_t i = 0; i < header.dwBytesRecorded; ++i)
            found.push_back(std::to_integer<int>(bytes.at(static_cast<std::size_t>(i))));
        EXPECT_EQ(found, each.bytes) << each.format.nChannels << ' ' << each.format.lSamplesPerSec;
        waveInClose(input);
        ListeningWindow::listen();
    }
    EXPECT_EQ(waveInOpen(input, {.format = formatOf(2, 48000, 16), .window = window.handle()}), WAVERR_BADFORMAT);
}

}  // namespace
}  // namespace lyrebrook
