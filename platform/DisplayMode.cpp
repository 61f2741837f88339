#include "platform/DisplayMode.h"

#include "platform/Services.h"

#include <QGuiApplication>
#include <QScreen>

namespace platform {

int screenDepth() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return 32;
    // A 24-bit colour X screen stores its pixels on 32 bits: it is the "16 millions de couleurs"
    // mode, and counts as 32 bits per pixel.
    const int depth = screen->depth();
    return depth >= 24 ? 32 : depth;
}

bool switchScreenDepth(int bitsPerPixel) {
    return screenDepth() == bitsPerPixel;
}

void changeDisplayDepth(int bitsPerPixel) {
    if (switchScreenDepth(bitsPerPixel)) {
        sound().playClick();
        return;
    }
    Message message;
    message.title = QStringLiteral("Erreur");
    message.text =
        QStringLiteral("Ce mode d'affichage n'est pas supporté. Veuillez vous reporter à "
                       "la documentation de votre carte graphique...");
    message.icon = MessageIcon::Critical;
    dialogs().message(message);
}

} // namespace platform
