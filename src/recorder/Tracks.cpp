#include "recorder/Tracks.h"

#include "platform/files/FileSystemObject.h"
#include "recorder/soundBuffers.h"
#include "recorder/waveLength.h"
#include "shell/modConfig.h"

namespace lyrebrook {
namespace {

/// A cursor stops at the end of its sound, and so tells the length.
std::int32_t lengthOf(DirectSoundSecondaryBuffer8& buffer) {
    DSCURSORS end;
    buffer.SetCurrentPosition(INT32_MAX);
    buffer.GetCurrentPosition(end);
    buffer.SetCurrentPosition(0);
    return end.lPlay;
}

}  // namespace

QString trackName(int track) {
    switch (track) {
        case musicTrack:
            return QStringLiteral("Music");
        case mixTrack:
            return QStringLiteral("Mix");
        default:
            return QStringLiteral("Voice ") + QString::number(track - 1);
    }
}

std::vector<Tracks::Unreadable> Tracks::loadTracks(DirectSound8& ds) {
    std::vector<Unreadable> unreadable;
    songBytes_ = 0;
    longestTrack_ = musicTrack;
    for (int track = 1; track <= trackCount; ++track) {
        Slot& slot = slots_[static_cast<std::size_t>(track)];
        slot = {};
        slot.file = trackFilePath(track);
        slot.exists = FileSystemObject().FileExists(slot.file);
        if (slot.exists) readFile(slot, track, ds, unreadable);
        if (!slot.buffer) slot.buffer = ds.CreateSoundBuffer(trackBufferDescription(0));
        const std::int32_t length = getWaveLength(track);
        if (length <= songBytes_) continue;
        songBytes_ = length;
        longestTrack_ = track;
    }
    return unreadable;
}

void Tracks::readFile(Slot& slot, int track, DirectSound8& ds, std::vector<Unreadable>& unreadable) {
    try {
        slot.buffer = ds.CreateSoundBufferFromFile(slot.file.toStdString(), trackBufferDescription(0));
        slot.soundBytes = lengthOf(*slot.buffer);
        slot.readable = true;
    } catch (const RuntimeError& error) {
        unreadable.push_back({track, error});
    }
}

void Tracks::CloseAudio() {
    for (Slot& slot : slots_) {
        if (slot.buffer) slot.buffer->Stop();
        slot.buffer.reset();
    }
}

bool Tracks::bufferHoldsFile(int track) const {
    const Slot& asked = slot(track);
    if (!FileSystemObject().FileExists(asked.file)) return true;
    return asked.readable && asked.soundBytes == toBytes(wholeFrames(getWaveLength(track)));
}

void Tracks::replaceBuffer(int track, std::unique_ptr<DirectSoundSecondaryBuffer8> buffer) {
    Slot& slot = slots_.at(static_cast<std::size_t>(track));
    slot.soundBytes = lengthOf(*buffer);
    slot.buffer = std::move(buffer);
    slot.exists = slot.readable = true;
}

std::int32_t Tracks::playCursor(int track) const {
    DSCURSORS cursors;
    trackBuffer(track).GetCurrentPosition(cursors);
    return cursors.lPlay;
}

float Tracks::getPosition(int track) const {
    if (songBytes_ == 0) return 0;
    return static_cast<float>(static_cast<double>(playCursor(track)) / songBytes_);
}

}  // namespace lyrebrook
