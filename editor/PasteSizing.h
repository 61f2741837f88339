#pragma once

#include "icon/Colour.h"
#include "icon/IconBitmap.h"

#include <QImage>
#include <QSize>

#include <string>

namespace editor {

// The two answers of the paste dialog FrmClipData.
enum class PasteFit {
    Proportional, // "Réduire en respectant les proportions"
    Square,       // "Réduire en 32x32"
};

// The colour of a copied picture's background, which a transparent paste makes transparent.
// White is the usual background of a picture copied from another program, and the editor's
// own copies are composed over white, so that what it copies comes back with its holes.
inline constexpr icon::Colour kPasteBackground = icon::kWhite;

// A picture larger than the icon on either side needs the dialog (33 × 10 does, 32 × 32 not).
bool pasteNeedsDialog(QSize picture);

// The dialog's size text, e.g. "64 x 48 pixels".
std::string pasteSizeText(QSize picture);

// Shrinks W × H in ten-thousandths of the original size until the longer side is 32 or less
// (the height when W < H, else the width; one step at least), holds each side at 1 at least,
// and rounds, halves to even: the largest size that fits with the proportions kept.
QSize ProportionalSize(double width, double height);

// The size the picture is pasted at: its own when it fits in 32 × 32, else the dialog's choice.
QSize pasteSize(QSize picture, PasteFit fit);

// The picture as a block of `size`, stretched by dropping or repeating pixels, never blending.
// Opaque: every pixel opaque. Transparent: every pixel of the background colour, and every
// pixel whose alpha is below 128, becomes transparent (black colour under a white mask).
icon::IconBitmap pictureToBlock(const QImage& picture, QSize size, bool opaque);

// The block as a picture for the clipboard: composed over the paste background.
QImage blockToPicture(const icon::IconBitmap& block);

} // namespace editor
