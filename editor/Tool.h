#pragma once

#include <optional>
#include <string>

namespace editor {

// The twelve tools, numbered in the order of the pad.
enum class Tool {
    Selection = 1,
    Pencil,
    Eraser,
    Picker,
    Fill,
    Line,
    Rectangle,
    FilledRectangle,
    TwoColourRectangle,
    Ellipse,
    FilledEllipse,
    TwoColourEllipse,
};

inline constexpr int kToolCount = 12;

// The name shown for a tool, e.g. "Sélection".
std::string toolName(Tool tool);
bool isFigure(Tool tool);

// The tool pad: four columns and three rows of buttons at a pitch of 28 pixels across and
// 26 down, each face 23×22 pixels.
struct ToolPad {
    static constexpr int kPitchX = 28;
    static constexpr int kPitchY = 26;
    static constexpr int kFaceWidth = 23;
    static constexpr int kFaceHeight = 22;
    // The tool under a point of the pad, (x div 28) + 1 + 4·(y div 26); nothing outside.
    static std::optional<Tool> toolAt(int x, int y);
    // The top-left corner of a tool's button.
    static int buttonX(Tool tool) { return ((static_cast<int>(tool) - 1) % 4) * kPitchX; }
    static int buttonY(Tool tool) { return ((static_cast<int>(tool) - 1) / 4) * kPitchY; }
};

} // namespace editor
