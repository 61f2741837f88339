#include "platform/MakeButton.h"

#include "platform/GradientButton.h"
#include "platform/HelpBubbles.h"

namespace platform {

GradientButton* makeButton(QWidget* parent, const char* name, const QString& caption,
                           const QString& help, const QRect& place) {
    auto* button = new GradientButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setGeometry(place);
    setHelpText(*button, help);
    return button;
}

} // namespace platform
