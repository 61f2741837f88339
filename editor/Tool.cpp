#include "editor/Tool.h"

#include <array>

namespace editor {

std::string toolName(Tool tool) {
    static const std::array<const char*, kToolCount> names = {
        "Sélection",        "Dessin",  "Gomme",          "Pipette",
        "Remplissage",      "Ligne",   "Rectangle",      "Rectangle plein",
        "Rectangle rempli", "Ellipse", "Ellipse pleine", "Ellipse remplie"};
    const int i = static_cast<int>(tool) - 1;
    return i >= 0 && i < kToolCount ? names[static_cast<std::size_t>(i)] : "";
}

bool isFigure(Tool tool) {
    return static_cast<int>(tool) >= static_cast<int>(Tool::Line);
}

std::optional<Tool> ToolPad::toolAt(int x, int y) {
    if (x < 0 || y < 0 || x >= 4 * kPitchX || y >= 3 * kPitchY)
        return std::nullopt;
    return static_cast<Tool>(x / kPitchX + 1 + 4 * (y / kPitchY));
}

} // namespace editor
