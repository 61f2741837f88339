// The twelve pictures of the tool pad, 16×16 pixels each, drawn for the program.
#include "editor/ui/ToolPictures.h"

#include <QPixmap>

#include <array>

namespace editor::ui {

namespace {

// Every picture uses the same colours: black outline, white, greys, the pencil's yellow and
// red, the eraser's pink, the paint's blue.
#define ORVANNE_TOOL_COLOURS                                                                       \
    ". c None", "k c #000000", "w c #FFFFFF", "g c #A0A0A0", "s c #909090", "y c #F0C800",         \
        "r c #D04040", "p c #F0A0C0", "b c #2060E0"

// The pictures are kept one row of pixels to a line.
// clang-format off
const char* const kSelection[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    ".kk.kk.kk.kk.kk.",
    ".k............k.",
    "................",
    ".k............k.",
    ".k............k.",
    "................",
    ".k............k.",
    ".k............k.",
    "................",
    ".k............k.",
    ".k............k.",
    ".kk.kk.kk.kk.kk.",
    "................",
    "................",
};

const char* const kPencil[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "............kk..",
    "...........krrk.",
    "..........kgrrk.",
    ".........kyygk..",
    "........kyyyk...",
    ".......kyyyk....",
    "......kyyyk.....",
    ".....kyyyk......",
    "....kyyyk.......",
    "...kwyyk........",
    "...kwwk.........",
    "..kkwk..........",
    "..kkk...........",
    "..k.............",
    "................",
};

const char* const kEraser[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "..........kk....",
    ".........kppk...",
    "........kppppk..",
    ".......kppppppk.",
    "......kppppppk..",
    ".....kwkppppk...",
    "....kwwwkppk....",
    "...kwwwwwkk.....",
    "..kwwwwwwk......",
    "..kwwwwwk.......",
    "...kwwwk........",
    "....kkk.........",
    "................",
    "................",
};

const char* const kPicker[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "...........kk...",
    "..........kkkk..",
    ".........kkkkkk.",
    "..........kkkk..",
    "........kkkkk...",
    ".......kwkkk....",
    "......kwk.k.....",
    ".....kwk........",
    "....kwbk........",
    "...kwbk.........",
    "..kbbk..........",
    "..kbk...........",
    "..kk............",
    "................",
    "................",
};

const char* const kFill[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "......kk........",
    ".....k..k.......",
    ".....k..kk......",
    "....kkkkwwk.....",
    "...kwwwwwwwk....",
    "..kwwwwwwwwwk...",
    "..kkwwwwwwwwbk..",
    "...kkwwwwwwkbb..",
    "....kkwwwwkbbb..",
    ".....kkwwk.bbb..",
    "......kkk..bbb..",
    "............b...",
    "................",
    "................",
    "................",
};

const char* const kLine[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    ".............k..",
    "............k...",
    "...........k....",
    "..........k.....",
    ".........k......",
    "........k.......",
    ".......k........",
    "......k.........",
    ".....k..........",
    "....k...........",
    "...k............",
    "..k.............",
    "................",
    "................",
};

const char* const kRectangle[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "................",
    "..kkkkkkkkkkkk..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..kkkkkkkkkkkk..",
    "................",
    "................",
    "................",
};

const char* const kFilledRectangle[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "................",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "................",
    "................",
    "................",
};

const char* const kTwoColourRectangle[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "................",
    "..kkkkkkkkkkkk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kkkkkkkkkkkk..",
    "................",
    "................",
    "................",
};

const char* const kEllipse[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "................",
    ".....kkkkkk.....",
    "...kk......kk...",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "..k..........k..",
    "...kk......kk...",
    ".....kkkkkk.....",
    "................",
    "................",
    "................",
};

const char* const kFilledEllipse[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "................",
    ".....kkkkkk.....",
    "...kkkkkkkkkk...",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "..kkkkkkkkkkkk..",
    "...kkkkkkkkkk...",
    ".....kkkkkk.....",
    "................",
    "................",
    "................",
};

const char* const kTwoColourEllipse[] = {
    "16 16 9 1", ORVANNE_TOOL_COLOURS,
    "................",
    "................",
    "................",
    ".....kkkkkk.....",
    "...kksssssskk...",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "..kssssssssssk..",
    "...kksssssskk...",
    ".....kkkkkk.....",
    "................",
    "................",
    "................",
};
// clang-format on

const std::array<const char* const*, 12> kPictures = {
    kSelection,
    kPencil,
    kEraser,
    kPicker,
    kFill,
    kLine,
    kRectangle,
    kFilledRectangle,
    kTwoColourRectangle,
    kEllipse,
    kFilledEllipse,
    kTwoColourEllipse,
};

} // namespace

QPixmap toolPicture(Tool tool) {
    return QPixmap(kPictures[static_cast<std::size_t>(static_cast<int>(tool) - 1)]);
}

} // namespace editor::ui
