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
template <typename Transform>
Events IconEditor::transformBlock(Transform transform, bool turns) {
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

Events IconEditor::flip(int index) {
    if (index == 3)
        return transformBlock(effects::flipHorizontal, false);
    if (index == 4)
        return transformBlock(effects::flipVertical, false);
    return kNoEvent;
}

Events IconEditor::quarterTurn(int index) {
    if (m_selection == SelectionState::None)
        return transformBlock(index == 5 ? effects::turnLeft : effects::turnRight, true);
    // A selection turns clockwise for both pad entries, as the program has always done; only
    // index 7 turns it the other way.
    return transformBlock(index == 7 ? effects::turnLeft : effects::turnRight, true);
}

bool IconEditor::reflectionEnabled(int index) const {
    if (index < 0 || index > 3)
        return false;
    if (m_selection == SelectionState::None)
        return true;
    return effects::reflectionAllowed(index, m_rect.width() / kCellSize,
                                      m_rect.height() / kCellSize);
}

Events IconEditor::halfReflect(int index) {
    if (!reflectionEnabled(index))
        return kNoEvent;
    return transformBlock([index](const IconBitmap& b) { return effects::halfReflect(b, index); },
                          false);
}

Events IconEditor::greyLevels() {
    return transformBlock(
        [](IconBitmap b) {
            effects::greyLevels(b);
            return b;
        },
        false);
}

Events IconEditor::negative() {
    return transformBlock(
        [](IconBitmap b) {
            effects::negative(b);
            return b;
        },
        false);
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
