#include "icon/PngEncoder.h"

#include <spng.h>

#include <cstdlib>
#include <memory>

namespace icon {

std::optional<std::vector<std::uint8_t>> encodePng(const RgbaPicture& picture) {
    if (picture.isEmpty())
        return std::nullopt;
    const RgbaPicture straight = unpremultiplied(picture);
    std::vector<std::uint8_t> rgba(straight.pixels.size() * 4);
    for (std::size_t i = 0; i < straight.pixels.size(); ++i) {
        const std::uint32_t px = straight.pixels[i];
        rgba[4 * i] = static_cast<std::uint8_t>(px >> 16);
        rgba[4 * i + 1] = static_cast<std::uint8_t>(px >> 8);
        rgba[4 * i + 2] = static_cast<std::uint8_t>(px);
        rgba[4 * i + 3] = static_cast<std::uint8_t>(px >> 24);
    }
    const std::unique_ptr<spng_ctx, void (*)(spng_ctx*)> context(spng_ctx_new(SPNG_CTX_ENCODER),
                                                                 spng_ctx_free);
    if (!context || spng_set_option(context.get(), SPNG_ENCODE_TO_BUFFER, 1) != 0)
        return std::nullopt;
    spng_ihdr ihdr{};
    ihdr.width = static_cast<std::uint32_t>(straight.width);
    ihdr.height = static_cast<std::uint32_t>(straight.height);
    ihdr.bit_depth = 8;
    ihdr.color_type = SPNG_COLOR_TYPE_TRUECOLOR_ALPHA;
    if (spng_set_ihdr(context.get(), &ihdr) != 0 ||
        spng_encode_image(context.get(), rgba.data(), rgba.size(), SPNG_FMT_PNG,
                          SPNG_ENCODE_FINALIZE) != 0)
        return std::nullopt;
    std::size_t length = 0;
    int error = 0;
    const std::unique_ptr<void, void (*)(void*)> buffer(
        spng_get_png_buffer(context.get(), &length, &error), std::free);
    if (!buffer || error != 0)
        return std::nullopt;
    const auto* bytes = static_cast<const std::uint8_t*>(buffer.get());
    return std::vector<std::uint8_t>(bytes, bytes + length);
}

} // namespace icon
