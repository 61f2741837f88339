#include "shell/Preferences.h"

namespace shell {

namespace {

const SettingKey* const kReadKeys[kSchemeColourCount] = {
    &keys::kGradientStart, &keys::kGradientEnd,      &keys::kButtonText, &keys::kButtonLightRead,
    &keys::kOtherText,     &keys::kWindowBackground, &keys::kViewing};

const SettingKey* const kWrittenKeys[kSchemeColourCount] = {
    &keys::kGradientStart, &keys::kGradientEnd,      &keys::kButtonText, &keys::kButtonLightWritten,
    &keys::kOtherText,     &keys::kWindowBackground, &keys::kViewing};

} // namespace

const SettingKey& readKeyOf(SchemeColour which) {
    return *kReadKeys[static_cast<std::size_t>(which)];
}

const SettingKey& writtenKeyOf(SchemeColour which) {
    return *kWrittenKeys[static_cast<std::size_t>(which)];
}

Preferences Preferences::load(const Settings& settings) {
    Preferences prefs;
    const ColourScheme defaults = ColourScheme::defaults();
    for (SchemeColour which : kAllSchemeColours)
        prefs.colours[which] = settings.readColour(readKeyOf(which), defaults[which]);
    // The grid flag's default is the number 1, which is not "Oui": a fresh user gets 32×32.
    prefs.icons48 = settings.readFlag(keys::kIcons48, QStringLiteral("1"));
    prefs.helpBubbles = settings.readFlag(keys::kHelpBubbles, QStringLiteral("Oui"));
    prefs.tipsAtStart = loadTipsAtStart(settings);
    return prefs;
}

bool Preferences::loadTipsAtStart(const Settings& settings) {
    return settings.readFlag(keys::kTipsAtStart, QStringLiteral("Oui"));
}

void Preferences::saveColour(Settings& settings, SchemeColour which) const {
    settings.saveColour(writtenKeyOf(which), colours[which]);
}

void Preferences::resetColours(Settings& settings) {
    colours = ColourScheme::defaults();
    for (SchemeColour which : kAllSchemeColours)
        saveColour(settings, which);
}

void Preferences::setIcons48(Settings& settings, bool on) {
    icons48 = on;
    settings.saveFlag(keys::kIcons48, on);
}

void Preferences::setHelpBubbles(Settings& settings, bool on) {
    helpBubbles = on;
    settings.saveFlag(keys::kHelpBubbles, on);
}

void Preferences::setTipsAtStart(Settings& settings, bool on) {
    tipsAtStart = on;
    settings.saveFlag(keys::kTipsAtStart, on);
}

QString toggleCaption(const QString& caption, bool on) {
    return on ? caption + QStringLiteral(" «") : caption;
}

} // namespace shell
