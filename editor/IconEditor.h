#pragma once

#include "editor/Events.h"
#include "editor/Figures.h"
#include "editor/History.h"
#include "editor/Palette.h"
#include "editor/PasteSizing.h"
#include "editor/PixelEffect.h"
#include "editor/Tool.h"
#include "effects/ColourAdjuster.h"
#include "icon/Colour.h"
#include "icon/Frame.h"
#include "icon/IconBitmap.h"
#include "icon/IconPlanes.h"

#include <QImage>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace editor {

// None; drawn (a framed rectangle, its pixels still in the icon); floating (a picture over the
// icon, not yet stamped into it).
enum class SelectionState { None, Drawn, Floating };

// A rectangle in canvas pixels, on grid lines; icon pixels are the values div 10.
struct CanvasRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool operator==(const CanvasRect&) const = default;
};

// The icon editor's engine: the document, its history, the tools, the selection, the palette
// and the effects. The window only forwards mouse, keys and commands and paints what the
// engine holds. Every change to the planes follows one protocol: the redo stack is emptied,
// the planes change, one snapshot is pushed, the window redraws.
class IconEditor {
public:
    static constexpr icon::Colour kDefaultPreviewBackground = 0xC0C0C0;

    IconEditor();

    // --- Document -------------------------------------------------------------------------
    const icon::IconPlanes& planes() const { return m_planes; }
    // The planes with a floating selection laid over them, as the canvas shows them.
    icon::IconPlanes displayedPlanes() const;
    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }
    // A blank, fully transparent icon: selection gone, first tool, black and white buttons,
    // history cleared and based on the blank icon.
    Events NewIcon();
    // An opened icon: as a new icon, then the history is based on the opened planes.
    Events loadIcon(const icon::IconPlanes& planes);
    // A change made outside the tools (a capture): the planes are replaced and recorded.
    Events replacePlanes(const icon::IconPlanes& planes);

    // --- History --------------------------------------------------------------------------
    // The edit pad drops a floating selection first; the keyboard does not.
    Events Undo(bool dropSelectionFirst = false);
    Events Redo(bool dropSelectionFirst = false);
    const History& history() const { return m_history; }

    // --- Canvas mouse ---------------------------------------------------------------------
    // Positions are canvas pixels; buttons 1 (left) and 2 (right), others ignored. A move
    // acts while the button that was pressed is held (pass 0 when none is).
    Events press(int button, double x, double y);
    Events move(int button, double x, double y);
    Events release(int button, double x, double y);
    int mouseX() const { return m_x; }
    int mouseY() const { return m_y; }
    // The position readout, e.g. "  3 , 7" or "12 , 30".
    std::string positionText() const;
    // Whether the pointer at this point shows the four-way move shape: over a selection.
    bool showsMoveShape(double x, double y) const;
    // The figure being dragged, in painting order; it is not in the planes until the release.
    const std::vector<PaintedCell>& rubberBand() const { return m_rubberBand; }
    bool isDragging() const { return m_held != 0; }

    // --- Tools ----------------------------------------------------------------------------
    Tool tool() const { return m_tool; }
    Tool previousTool() const { return m_previousTool; }
    // The pad's choice; the former tool becomes the previous tool.
    Events selectTool(Tool tool);

    // --- Colours and palette --------------------------------------------------------------
    icon::Colour buttonColour(int index) const { return m_buttonColours[index & 1]; }
    Events ResetButtonColours();
    const Palette& palette() const { return m_palette; }
    // A release over the palette: the cell under (x, y) becomes the button's colour, first
    // redefined as `redefined` when "Couleurs vraies" gave a colour. Invalid cells and
    // buttons are ignored.
    Events paletteRelease(int button, double x, double y,
                          std::optional<icon::Colour> redefined = std::nullopt);
    // The background the preview shows under transparent pixels; the fill reads it.
    icon::Colour previewBackground() const { return m_previewBackground; }
    void setPreviewBackground(icon::Colour colour) { m_previewBackground = colour; }

    // --- Selection and clipboard ----------------------------------------------------------
    SelectionState selectionState() const { return m_selection; }
    bool isSelectionMoving() const { return m_moving; }
    const CanvasRect& selectionRect() const { return m_rect; }
    // The dotted frame to show: around a selection, or the one being dragged out.
    std::optional<CanvasRect> selectionFrame() const;
    // The floating picture (or the lifted pixels of a drawn selection), at selectionRect().
    const icon::IconBitmap& selectionBuffers() const { return m_buffers; }

    // Ends a selection; a floating picture is stamped into the icon and recorded.
    Events DropSelection();
    Events SelectAll();
    // The command "Supprimer la sélection": a drawn selection's rectangle becomes transparent
    // (white mask, black colour), a floating picture is thrown away; one step either way.
    Events DeleteSelection();
    // The selection as a picture for the clipboard; a null image without a selection.
    QImage CopySelection();
    struct CutResult {
        QImage picture;
        Events events = kNoEvent;
    };
    CutResult Cut();
    // Pastes the clipboard's picture as a floating selection at the top-left corner. `fit` is the
    // dialog's answer, read only when pasteNeedsDialog() says the dialog was shown.
    Events PasteClipboard(const QImage& picture, bool opaque,
                          PasteFit fit = PasteFit::Proportional);

    // --- Effects --------------------------------------------------------------------------
    // A pixel effect on the selection, or on the whole icon without one. A selection turns
    // clockwise whichever turn is asked, as the program has always done.
    Events applyEffect(PixelEffect effect);
    // Whether the effect can be chosen now: a reflection needs two halves of the selection.
    bool effectEnabled(PixelEffect effect) const;
    Events buttonEffect();
    // Settles any selection and gives the dialog's tables for the icon.
    effects::ColourAdjuster beginColourAdjustment(icon::Colour previewBackground = icon::kWhite);
    // "Ok" of the colour dialog.
    Events applyColourAdjustment(const effects::ColourAdjuster& adjuster);
    // "Ok" of the kaleidoscope or gradient dialog: the picture fills the transparent pixels.
    Events applyBackground(const icon::Frame& picture);

private:
    Events commit();
    void setPosition(double x, double y);
    bool isOverSelection(int x, int y) const;
    void liftSelection();
    void writeBackSelection();
    static void stamp(icon::IconPlanes& planes, const icon::IconBitmap& block,
                      const CanvasRect& rect);
    void moveSelectionTo(int x, int y);
    void paintCellAt(int x, int y);
    void updateRubberBand();
    Events transformBlock(icon::IconBitmap (*transform)(const icon::IconBitmap&), bool turns);

    icon::IconPlanes m_planes;
    History m_history;
    bool m_modified = false;

    Tool m_tool = Tool::Selection;
    Tool m_previousTool = Tool::Selection;
    std::array<icon::Colour, 2> m_buttonColours{icon::kBlack, icon::kWhite};
    Palette m_palette;
    icon::Colour m_previewBackground = kDefaultPreviewBackground;

    // The stroke in progress.
    int m_x = 0, m_y = 0;
    int m_held = 0;
    icon::Colour m_drawColour = icon::kBlack;
    int m_startX = 0, m_startY = 0;
    std::vector<PaintedCell> m_rubberBand;

    // The selection.
    SelectionState m_selection = SelectionState::None;
    bool m_framing = false; // a new frame is being dragged out
    bool m_moving = false;
    CanvasRect m_rect;
    std::array<int, 4> m_offsets{}; // from the grab point to the left, top, right, bottom edges
    icon::IconBitmap m_buffers;
};

} // namespace editor
