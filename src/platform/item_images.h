// The pictures that stand before items and rows, by their places in the strip that tree and lists share.
#pragma once

namespace varlo::item_image {

inline constexpr int kCard = 3;
inline constexpr int kRegion = 4;
inline constexpr int kOwnStyle = 10;
inline constexpr int kShippedStyle = 22;
inline constexpr int kOtherStyle = 26;
inline constexpr int kTick = 27;
inline constexpr int kCross = 28;
inline constexpr int kEmptyBox = 29;
inline constexpr int kTickedBox = 30;

}  // namespace varlo::item_image
