#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/sound/MixerBackend.h"
#include "platform/sound/cards/CardLines.h"
#include "platform/sound/cards/MixerMemory.h"
#include "platform/sound/cards/pulse/MixerConnection.h"
#include "platform/sound/cards/pulse/RecordingSource.h"

namespace lyrebrook {

struct CardShare;

/// What a mixer device of a server acts on: the server, the program's own buses, and what the card records.
struct MixerParts {
    std::shared_ptr<MixerConnection> connection;
    std::shared_ptr<CardLines> buses;
    std::shared_ptr<CardShare> card;
};

/// An open mixer on a sink of the server. Its listener is called on the program's thread for what is changed there, and
/// on the connection's for the rest. What is away, sink, source or server, reads as it stood last and can't be set.
class PulseMixerDevice final : public MixerDevice {
  public:
    /// `sink` is empty for whichever is the default.
    PulseMixerDevice(MixerParts parts, std::string sink, MixerListener listener);
    ~PulseMixerDevice() override;

    const MixerLayout& layout() const override { return layout_; }
    MixerValues read(const MixerControlPlace& control) const override;
    bool write(const MixerControlPlace& control, std::span<const std::int32_t> values) override;

  private:
    /// What a line of the recording side stands for; of `cardOutput` the sink tells which source of the server it is.
    using Inputs = std::vector<RecordingSource>;

    void makeLayout(const ServerPicture& picture);
    void addInput(const MixerLineInfo& line, const RecordingSource& source);
    const PulseDevice* sink(const ServerPicture& picture) const;
    const PulseDevice* source(const ServerPicture& picture, const RecordingSource& input) const;
    MixerValues readNow(const MixerControlPlace& control) const;
    MixerValues readDevice(const MixerControlPlace& control) const;
    MixerValues readBus(const MixerControlPlace& control) const;
    MixerValues readSelection() const;
    bool writeDevice(const MixerControlPlace& control, std::span<const std::int32_t> values);
    bool writeBus(const MixerControlPlace& control, std::span<const std::int32_t> values);
    bool writeSelection(std::span<const std::int32_t> flags);
    void makeDefault(const std::string& name);
    void followDefaultSource();
    bool somebodyChoseDefault(const ServerPicture& picture);
    void tellChanges();

    MixerParts parts_;
    std::string sinkName_;
    MixerListener listener_;
    MixerLayout layout_;
    Inputs inputs_;

    mutable std::mutex mutex_;
    MixerMemory memory_;
    std::string defaultSource_;         // as the server told last
    std::vector<std::string> ordered_;  // defaults of ours that it hasn't told yet
    std::uint32_t connection_ = 0;

    CardLines::Watch busWatch_;
    MixerConnection::Watch serverWatch_;
};

}  // namespace lyrebrook
