#pragma once

#include "icon/Frame.h"

#include <QImage>

#include <cstdint>
#include <span>

namespace iconqt {

// A frame for painting and saving with Qt: opaque RGB32.
QImage toImage(const icon::Frame& frame);
// The colours of any image, alpha dropped.
icon::Frame frameFromImage(const QImage& image);

// The editor's validity test: the icon reader decodes the bytes, or one of Qt's image readers
// loads them.
bool isLoadablePicture(std::span<const std::uint8_t> bytes);

} // namespace iconqt
