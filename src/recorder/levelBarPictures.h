#pragma once

namespace lyrebrook {

class Frame;
class LevelBars;
class PictureBox;

/// Sets two pictures into their frame as level bars, one above the other in a dark well of the full width, coloured
/// from green to red and seen as far as they are wide.
void layOutLevelBars(Frame& frame, PictureBox& left, PictureBox& right);

/// Brings the pictures to the widths of the bars.
void showLevels(const LevelBars& bars, PictureBox& left, PictureBox& right);

}  // namespace lyrebrook
