// The contrast between every button caption and the colours drawn under it, in the default
// colour scheme, read from the pixels the buttons paint (offscreen), at rest and pressed:
//   build/bin/caption_contrast
// Prints one line per caption and, per window, the lowest figure; aims: 4.5, at least 3.
#include "browser/ThumbnailProvider.h"
#include "browser/ui/FenPrin.h"
#include "editor/IconEditor.h"
#include "editor/ui/FrmClipData.h"
#include "editor/ui/FrmIcoEd.h"
#include "effects/UniformGenerator.h"
#include "effects/ui/FrmColAdj.h"
#include "effects/ui/FrmRndIcon.h"
#include "effects/ui/FrmShades.h"
#include "platform/GradientButton.h"
#include "platform/Services.h"
#include "shell/Contrast.h"
#include "shell/ui/Apropos.h"
#include "shell/ui/Avertis.h"
#include "shell/ui/Conseils.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

icon::Colour fromPixel(QRgb pixel) {
    return icon::rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

// The lowest contrast between the caption's colour and the background beside the caption's
// glyphs, over every row the caption covers. The gradients run top to bottom, so the pixels
// just inside the button's frame, on the caption's rows, are what lies under the glyphs.
double captionContrast(platform::GradientButton& button, bool pressed) {
    button.setDown(pressed);
    const QImage picture = button.grab().toImage();
    button.setDown(false);
    const QRect caption = button.captionRect();
    const int ratio = static_cast<int>(picture.devicePixelRatio());
    double lowest = 21.0;
    for (int y = caption.top(); y <= caption.bottom(); ++y) {
        for (int x : {3, button.width() - 4}) {
            const icon::Colour under = fromPixel(picture.pixel(x * ratio, y * ratio));
            lowest = std::min(lowest, shell::contrastRatio(button.textColour(), under));
        }
    }
    return lowest;
}

void measure(const char* window, QWidget& widget) {
    double lowest = 21.0;
    int count = 0;
    for (auto* button : widget.findChildren<platform::GradientButton*>()) {
        if (button->text().isEmpty())
            continue;
        const double atRest = captionContrast(*button, false);
        const double pressed = captionContrast(*button, true);
        std::printf("  %-10s %-16s %-28s %5.2f  %5.2f\n", window,
                    button->objectName().toUtf8().constData(),
                    button->text().left(28).toUtf8().constData(), atRest, pressed);
        lowest = std::min({lowest, atRest, pressed});
        ++count;
    }
    std::printf("%s: %d captions, lowest %.2f:1\n\n", window, count, lowest);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // A new user: the default scheme, whatever the developer chose for his own.
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home.path() + QStringLiteral("/.config")).toUtf8());
    QApplication app(argc, argv);

    std::printf("  window     button           caption                      rest   pressed\n");
    editor::ui::FrmIcoEd editorWindow;
    measure("FrmIcoEd", editorWindow);

    editor::IconEditor engine;
    effects::ui::FrmColAdj colours(engine.beginColourAdjustment());
    measure("FrmColAdj", colours);
    effects::StdUniformGenerator random(1);
    effects::ui::FrmRndIcon kaleidoscope(platform::dialogs(), random);
    measure("FrmRndIcon", kaleidoscope);
    effects::ui::FrmShades gradient;
    measure("FrmShades", gradient);
    editor::ui::FrmClipData paste(QSize(64, 64));
    measure("FrmClipData", paste);

    shell::ui::Conseils tips;
    measure("Conseils", tips);
    shell::ui::Avertis warning;
    measure("Avertis", warning);
    shell::ui::Apropos about;
    measure("Apropos", about);

    const browser::IcoThumbnailProvider provider;
    browser::ui::FenPrin main(provider);
    measure("FenPrin", main);
    return 0;
}
