#pragma once

namespace editor {

// The pixel effects the engine applies to a block (the whole icon or the selection), by name.
enum class PixelEffect {
    GreyLevels,
    Negative,
    FlipHorizontal,
    FlipVertical,
    TurnLeft,
    TurnRight,
    ReflectLeftOntoRight,
    ReflectRightOntoLeft,
    ReflectTopOntoBottom,
    ReflectBottomOntoTop,
};

} // namespace editor
