// The effects as the icon editor's engine applies them: which block, and what is recorded.
#include "editor/IconEditor.h"

#include "editor/Coordinates.h"
#include "effects/Background.h"
#include "effects/ButtonEffect.h"
#include "effects/ColourTransforms.h"
#include "effects/Transforms.h"

namespace editor {

using icon::IconBitmap;

// Without a selection the whole icon changes and one step is recorded. A floating selection
// changes in its buffers only, with no step. A drawn selection changes in place, also with no
// step; a quarter turn lifts it first, and it floats afterwards.
Events IconEditor::transformBlock(IconBitmap (*transform)(const IconBitmap&), bool turns) {
    switch (m_selection) {
    case SelectionState::None:
        m_planes = icon::toPlanes(transform(icon::fromPlanes(m_planes)));
        return commit();
    case SelectionState::Drawn:
        liftSelection();
        if (turns)
            m_selection = SelectionState::Floating;
        break;
    case SelectionState::Floating:
        break;
    }
    const int width = m_rect.width(), height = m_rect.height();
    m_buffers = transform(m_buffers);
    if (turns) {
        // The turned block keeps its top-left corner; its sides are exchanged.
        m_rect.right = m_rect.left + height;
        m_rect.bottom = m_rect.top + width;
    }
    if (m_selection == SelectionState::Drawn) {
        writeBackSelection();
        m_modified = true;
    }
    return kRedraw;
}

namespace {

using Effect = IconBitmap (*)(const IconBitmap&);

struct EffectRule {
    Effect onIcon;
    Effect onSelection;
    bool turns;
};

EffectRule ruleOf(PixelEffect effect) {
    switch (effect) {
    case PixelEffect::GreyLevels:
        return {effects::greyLevels, effects::greyLevels, false};
    case PixelEffect::Negative:
        return {effects::negative, effects::negative, false};
    case PixelEffect::FlipHorizontal:
        return {effects::flipHorizontal, effects::flipHorizontal, false};
    case PixelEffect::FlipVertical:
        return {effects::flipVertical, effects::flipVertical, false};
    case PixelEffect::TurnLeft:
        return {effects::turnLeft, effects::turnRight, true};
    case PixelEffect::TurnRight:
        return {effects::turnRight, effects::turnRight, true};
    case PixelEffect::ReflectLeftOntoRight:
        return {effects::reflectLeftOntoRight, effects::reflectLeftOntoRight, false};
    case PixelEffect::ReflectRightOntoLeft:
        return {effects::reflectRightOntoLeft, effects::reflectRightOntoLeft, false};
    case PixelEffect::ReflectTopOntoBottom:
        return {effects::reflectTopOntoBottom, effects::reflectTopOntoBottom, false};
    case PixelEffect::ReflectBottomOntoTop:
        return {effects::reflectBottomOntoTop, effects::reflectBottomOntoTop, false};
    }
    return {nullptr, nullptr, false};
}

} // namespace

bool IconEditor::effectEnabled(PixelEffect effect) const {
    if (m_selection == SelectionState::None)
        return true;
    switch (effect) {
    case PixelEffect::ReflectLeftOntoRight:
    case PixelEffect::ReflectRightOntoLeft:
        return effects::halvesAcross(m_rect.width() / kCellSize);
    case PixelEffect::ReflectTopOntoBottom:
    case PixelEffect::ReflectBottomOntoTop:
        return effects::halvesDown(m_rect.height() / kCellSize);
    default:
        return true;
    }
}

Events IconEditor::applyEffect(PixelEffect effect) {
    const EffectRule rule = ruleOf(effect);
    if (rule.onIcon == nullptr || !effectEnabled(effect))
        return kNoEvent;
    return transformBlock(m_selection == SelectionState::None ? rule.onIcon : rule.onSelection,
                          rule.turns);
}

Events IconEditor::buttonEffect() {
    const Events events = DropSelection();
    effects::buttonEffect(m_planes);
    return events | commit();
}

effects::ColourAdjuster IconEditor::beginColourAdjustment(icon::Colour previewBackground) {
    DropSelection();
    return effects::ColourAdjuster(m_planes, previewBackground);
}

Events IconEditor::applyColourAdjustment(const effects::ColourAdjuster& adjuster) {
    adjuster.applyTo(m_planes);
    return commit();
}

Events IconEditor::applyBackground(const icon::Frame& picture) {
    const Events events = DropSelection();
    effects::applyBackground(m_planes, picture);
    return events | commit();
}

} // namespace editor
