#pragma once

#include <map>
#include <set>

#include "platform/winmm/mixer.h"

namespace lyrebrook {

/// A card that is nothing but a table of lines and values, which a test lays out as it likes. In place of the card's
/// own mixer for as long as it lives.
class TableCard {
  public:
    using Kind = MixerControlKind;
    using Values = std::vector<std::int32_t>;

    TableCard() { setMixerBackend(std::make_shared<Backend>(*this)); }
    ~TableCard() { setMixerBackend(nullptr); }
    TableCard(const TableCard&) = delete;
    TableCard& operator=(const TableCard&) = delete;

    std::vector<std::string> devices{"Table"};
    MixerLayout layout;
    std::map<MixerControlPlace, Values> values;
    std::int32_t opened = -1;
    std::vector<MixerControlPlace> written;
    std::set<MixerControlPlace> failOnce;  ///< the next reading of these fails

    void addDestination(std::int32_t componentType, std::vector<Kind> kinds = {Kind::volume, Kind::mute}) {
        const auto number = static_cast<std::uint16_t>(layout.size());
        MixerDestination made;
        made.line = lineOf(mixerLineId(number, destinationItself), "Out", kinds);
        made.line.componentType = componentType;
        layout.push_back(made);
    }

    /// Adds a source to the destination that was added last; every selection there lists it.
    std::int32_t addSource(const std::string& name, const std::vector<Kind>& kinds) {
        MixerDestination& destination = layout.back();
        const auto number = static_cast<std::uint16_t>(destination.sources.size());
        const std::int32_t id = mixerLineId(static_cast<std::uint16_t>(layout.size() - 1), number);
        destination.sources.push_back(lineOf(id, name, kinds));
        for (MixerControlInfo& control : destination.line.controls) {
            if (control.kind != Kind::multiplexer && control.kind != Kind::mixer) continue;
            control.items.push_back(id);
            values[{destination.line.id, control.kind}].push_back(number == 0 ? 1 : 0);
        }
        return id;
    }

    /// A card of the usual kind: speakers with a master, and a selection of what is recorded.
    void layOut(const std::vector<std::string>& playback, const std::vector<std::string>& recording,
                Kind selection = Kind::multiplexer) {
        addDestination(MIXERLINE_COMPONENTTYPE_DST_SPEAKERS);
        for (const std::string& name : playback) addSource(name, {Kind::volume, Kind::mute});
        addDestination(MIXERLINE_COMPONENTTYPE_DST_WAVEIN, {selection});
        for (const std::string& name : recording) addSource(name, {Kind::volume});
    }

  private:
    struct Device final : MixerDevice {
        Device(TableCard& table, MixerListener told) : card(table), listener(std::move(told)) {}

        const MixerLayout& layout() const override { return card.layout; }
        std::optional<Values> read(const MixerControlPlace& control) const override {
            const auto found = card.values.find(control);
            if (found == card.values.end() || card.failOnce.erase(control) > 0) return std::nullopt;
            return found->second;
        }
        bool write(const MixerControlPlace& control, std::span<const std::int32_t> written) override {
            card.values[control].assign(written.begin(), written.end());
            card.written.push_back(control);
            listener({control.line, control.kind});
            return true;
        }

        TableCard& card;
        MixerListener listener;
    };

    struct Backend final : MixerBackend {
        explicit Backend(TableCard& table) : card(table) {}

        std::vector<std::string> deviceNames() override { return card.devices; }
        std::unique_ptr<MixerDevice> open(std::int32_t device, MixerListener listener) override {
            if (device < 0 || std::cmp_greater_equal(device, card.devices.size())) return nullptr;
            card.opened = device;
            return std::make_unique<Device>(card, std::move(listener));
        }

        TableCard& card;
    };

    MixerLineInfo lineOf(std::int32_t id, const std::string& name, const std::vector<Kind>& kinds) {
        MixerLineInfo line{.id = id, .name = name, .controls = {}};
        for (const Kind kind : kinds) {
            line.controls.push_back({.kind = kind, .items = {}});
            if (kind == Kind::volume) values[{id, kind}] = {20000, 20000};
            if (kind == Kind::mute) values[{id, kind}] = {0};
        }
        return line;
    }
};

}  // namespace lyrebrook
