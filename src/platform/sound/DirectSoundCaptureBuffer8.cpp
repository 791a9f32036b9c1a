#include "platform/sound/DirectSoundCaptureBuffer8.h"

#include <utility>

#include "platform/sound/DirectSoundSecondaryBuffer8.h"
#include "platform/sound/bufferChecks.h"

namespace lyrebrook {

DirectSoundCaptureBuffer8::DirectSoundCaptureBuffer8(std::shared_ptr<SoundEngine> engine, Frames length)
    : engine_(std::move(engine)), tape_(std::make_unique<CaptureTape>(length)) {
    engine_->attach(*tape_);
    engine_->openInput();
}

DirectSoundCaptureBuffer8::~DirectSoundCaptureBuffer8() {
    engine_->detach(std::move(tape_));
    keepSource(false);
    engine_->closeInput();
}

void DirectSoundCaptureBuffer8::Start(std::int32_t flags) {
    start({.looping = (flags & DSCBSTART_LOOPING) != 0});
}

void DirectSoundCaptureBuffer8::startBeside(const DirectSoundSecondaryBuffer8& playing) {
    start({.beside = &playing.unit()});
}

void DirectSoundCaptureBuffer8::start(EngineCommand command) {
    if (running()) return;
    started_ = true;
    looping_ = command.looping;
    startTicket_ = ++ticket_;
    command.unit = tape_.get();
    command.verb = Verb::start;
    command.ticket = startTicket_;
    engine_->post(command);
    keepSource(!looping_);
}

/// One that loops is a meter, which follows what everybody chooses.
void DirectSoundCaptureBuffer8::keepSource(bool keep) {
    if (std::exchange(keepsSource_, keep) == keep) return;
    keep ? engine_->holdSource() : engine_->releaseSource();
}

std::optional<std::int32_t> DirectSoundCaptureBuffer8::startedBeside() const {
    const UnitState beside = tape_->stoodBeside();
    if (!beside.running || beside.ticket != startTicket_) return std::nullopt;
    return toBytes(beside.position);
}

void DirectSoundCaptureBuffer8::Stop() {
    if (!started_) return;
    if (!looping_) engine_->awaitInput();
    stoppedAt_ = position();
    started_ = false;
    keepSource(false);
    engine_->post({.unit = tape_.get(), .verb = Verb::stop, .ticket = ++ticket_});
}

void DirectSoundCaptureBuffer8::GetCurrentPosition(DSCURSORS& cursors) const {
    cursors.lPlay = cursors.lWrite = toBytes(position());
}

void DirectSoundCaptureBuffer8::ReadBuffer(std::int32_t start, std::int32_t size, std::span<std::byte> buffer,
                                           std::int32_t flags) const {
    if ((flags & DSBLOCK_ENTIREBUFFER) != 0) {
        start = 0;
        size = toBytes(tape_->length());
    }
    requireRange(start, size, toBytes(tape_->length()), buffer.size());
    tape_->read(static_cast<std::size_t>(start), buffer.first(static_cast<std::size_t>(size)));
}

Frames DirectSoundCaptureBuffer8::position() const {
    if (!started_) return stoppedAt_;
    const UnitState state = tape_->state();
    return state.ticket == ticket_ ? state.position : 0;
}

bool DirectSoundCaptureBuffer8::running() const {
    const UnitState state = tape_->state();
    return started_ && (state.running || state.ticket != ticket_);
}

}  // namespace lyrebrook
