#pragma once

#include <QString>

#include "platform/forms/CheckBox.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/ScrollBar.h"
#include "platform/forms/Slider.h"
#include "platform/forms/TextBox.h"

namespace lyrebrook {

/// One of the mixer screen's two rows of line panels: the form's control arrays of one subject, an element a line, and
/// the strip in the viewport that the panels stand on. All of it is the form's; made for a call and dropped after it.
struct LineRow {
    ControlArray<Frame>& panels;
    ControlArray<Slider>& volumes;
    ControlArray<Slider>& balances;
    ControlArray<TextBox>& percents;
    ControlArray<CheckBox>& choices;  ///< mute, or select
    ControlArray<Label>& sides;
    ControlArray<TextBox>& lineIds;
    PictureBox& viewport;
    PictureBox& strip;
    ScrollBar& across;
    ScrollBar& down;

    /// Makes the panel if there is none, shows it, and widens the strip for it.
    void add(int index, const QString& lineName) const;

    /// The name that is seen, and that each of the panel's controls is known by to those who hear.
    void setName(int index, const QString& lineName) const;

    void showPercent(int index) const;

    /// Lays the bars along the viewport's lower and right edge. From then on it counts in pixels.
    void layScrollBars() const;

    static constexpr Twips emptyStripWidth = 275;
    static constexpr Twips panelWidth = 975;
    static constexpr Twips panelHeight = 2565;
    static constexpr Twips panelStart = 120;  // from the left and from the top
    static constexpr std::int32_t newVolume = 25;
};

}  // namespace lyrebrook
