#pragma once

#include "editor/Events.h"

#include <span>
#include <vector>

namespace editor {

class IconEditor;

// Every command of the editor's Edition, Couleurs and Effets pads (the reflections sit on a
// pad of their own below Effets), by name.
enum class Command {
    Undo,
    Redo,
    Cut,
    Copy,
    ClipboardViewer,
    Paste,
    PasteOpaque,
    Capture,
    DeleteSelection,
    SelectAll,
    CaptureZone,
    GreyLevels,
    Negative,
    AdjustColours,
    SixteenMillionColours,
    ButtonEffect,
    Gradient,
    Kaleidoscope,
    FlipHorizontal,
    FlipVertical,
    TurnLeft,
    TurnRight,
    ReflectLeftOntoRight,
    ReflectRightOntoLeft,
    ReflectTopOntoBottom,
    ReflectBottomOntoTop,
};

enum class Pad { Edition, Couleurs, Effets, Reflets };

// Where a command was chosen: the Edition pad settles a floating picture before an undo or a
// redo, the keys do not.
enum class Origin { Pad, Key };

struct EditorCommand {
    Command command;
    Pad pad;
    int index;        // its place on its pad, from 0
    const char* text; // as the pad shows it
    char key;         // the letter that runs it, with or without Ctrl; 0 for none
    // Runs it on the engine. Null for a command that needs more than the engine (the clipboard,
    // another window, the display): the window or whoever composes it supplies those.
    Events (*run)(IconEditor&, Origin);
    // Whether it can be chosen now; null when it always can.
    bool (*enabled)(const IconEditor&);
};

// The whole table, pad by pad, each pad in its order.
std::span<const EditorCommand> editorCommands();
const EditorCommand& commandInfo(Command command);
// The command of a letter key ('A'..'Z'), or null.
const EditorCommand* commandForKey(int key);
std::vector<const EditorCommand*> padCommands(Pad pad);
// The help page context of a pad's commands.
int helpContext(Pad pad);

} // namespace editor
