#include "editor/EditorCommands.h"

#include "editor/IconEditor.h"

namespace editor {

namespace {

template <PixelEffect effect>
Events runEffect(IconEditor& engine, Origin) {
    return engine.applyEffect(effect);
}

template <PixelEffect effect>
bool effectEnabled(const IconEditor& engine) {
    return engine.effectEnabled(effect);
}

Events undo(IconEditor& engine, Origin origin) {
    return engine.Undo(origin == Origin::Pad);
}

Events redo(IconEditor& engine, Origin origin) {
    return engine.Redo(origin == Origin::Pad);
}

Events deleteSelection(IconEditor& engine, Origin) {
    return engine.DeleteSelection();
}

Events selectAll(IconEditor& engine, Origin) {
    return engine.SelectAll();
}

Events buttonEffect(IconEditor& engine, Origin) {
    return engine.buttonEffect();
}

using P = PixelEffect;

constexpr EditorCommand kCommands[] = {
    {Command::Undo, Pad::Edition, 0, "Annuler    Ctrl+Z", 'Z', undo, nullptr},
    {Command::Redo, Pad::Edition, 1, "Refaire    Ctrl+R", 'R', redo, nullptr},
    {Command::Cut, Pad::Edition, 2, "Couper    Ctrl+X", 'X', nullptr, nullptr},
    {Command::Copy, Pad::Edition, 3, "Copier    Ctrl+C", 'C', nullptr, nullptr},
    {Command::ClipboardViewer, Pad::Edition, 4, "Appel du presse-papiers    Ctrl+P", 'P', nullptr,
     nullptr},
    {Command::Paste, Pad::Edition, 5, "Coller    Ctrl+V", 'V', nullptr, nullptr},
    {Command::PasteOpaque, Pad::Edition, 6, "Collage opaque    Ctrl+O", 'O', nullptr, nullptr},
    {Command::Capture, Pad::Edition, 7, "Capturer    Ctrl+K", 'K', nullptr, nullptr},
    {Command::DeleteSelection, Pad::Edition, 8, "Supprimer la sélection    Ctrl+S", 'S',
     deleteSelection, nullptr},
    {Command::SelectAll, Pad::Edition, 9, "Sélectionner tout    Ctrl+T", 'T', selectAll, nullptr},
    {Command::CaptureZone, Pad::Edition, 10, "Capturer une zone d'image    Ctrl+N", 'N', nullptr,
     nullptr},

    {Command::GreyLevels, Pad::Couleurs, 0, "Niveaux de gris", 0, runEffect<P::GreyLevels>,
     nullptr},
    {Command::Negative, Pad::Couleurs, 1, "Icône en négatif", 0, runEffect<P::Negative>, nullptr},
    {Command::AdjustColours, Pad::Couleurs, 2, "Ajuster les couleurs", 0, nullptr, nullptr},
    {Command::SixteenMillionColours, Pad::Couleurs, 3, "Affichage en 16 millions de couleurs", 0,
     nullptr, nullptr},

    {Command::ButtonEffect, Pad::Effets, 0, "Effet bouton", 0, buttonEffect, nullptr},
    {Command::Gradient, Pad::Effets, 1, "Fond en dégradé", 0, nullptr, nullptr},
    {Command::Kaleidoscope, Pad::Effets, 2, "Fond 'kaléidoscope'", 0, nullptr, nullptr},
    {Command::FlipHorizontal, Pad::Effets, 3, "Mirroir horizontal", 0, runEffect<P::FlipHorizontal>,
     nullptr},
    {Command::FlipVertical, Pad::Effets, 4, "Mirroir vertical", 0, runEffect<P::FlipVertical>,
     nullptr},
    {Command::TurnLeft, Pad::Effets, 5, "Rotation 90° à gauche", 0, runEffect<P::TurnLeft>,
     nullptr},
    {Command::TurnRight, Pad::Effets, 6, "Rotation 90° à droite", 0, runEffect<P::TurnRight>,
     nullptr},

    {Command::ReflectLeftOntoRight, Pad::Reflets, 0, "Reflet gauche/droite", 0,
     runEffect<P::ReflectLeftOntoRight>, effectEnabled<P::ReflectLeftOntoRight>},
    {Command::ReflectRightOntoLeft, Pad::Reflets, 1, "Reflet droite/gauche", 0,
     runEffect<P::ReflectRightOntoLeft>, effectEnabled<P::ReflectRightOntoLeft>},
    {Command::ReflectTopOntoBottom, Pad::Reflets, 2, "Reflet haut/bas", 0,
     runEffect<P::ReflectTopOntoBottom>, effectEnabled<P::ReflectTopOntoBottom>},
    {Command::ReflectBottomOntoTop, Pad::Reflets, 3, "Reflet bas/haut", 0,
     runEffect<P::ReflectBottomOntoTop>, effectEnabled<P::ReflectBottomOntoTop>},
};

} // namespace

std::span<const EditorCommand> editorCommands() {
    return kCommands;
}

const EditorCommand& commandInfo(Command command) {
    // The table lists the commands in the order of the enumeration.
    return kCommands[static_cast<std::size_t>(command)];
}

const EditorCommand* commandForKey(int key) {
    for (const EditorCommand& c : kCommands)
        if (c.key != 0 && c.key == key)
            return &c;
    return nullptr;
}

std::vector<const EditorCommand*> padCommands(Pad pad) {
    std::vector<const EditorCommand*> out;
    for (const EditorCommand& c : kCommands)
        if (c.pad == pad)
            out.push_back(&c);
    return out;
}

int helpContext(Pad pad) {
    switch (pad) {
    case Pad::Edition:
        return 7;
    case Pad::Couleurs:
        return 9;
    case Pad::Effets:
    case Pad::Reflets:
        return 8;
    }
    return 3;
}

} // namespace editor
