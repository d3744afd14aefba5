#include "app/settings/ThemePalette.hpp"

namespace vantello::app {

namespace {

QColor withOpacity(QColor colour, float opacity) {
    colour.setAlphaF(opacity);
    return colour;
}

// The colours a whole Qt palette is derived from.
struct PaletteColours {
    QColor window;
    QColor base;
    QColor alternateBase;
    QColor text;
    QColor button;
    QColor mid;
    QColor highlight;
    QColor highlightedText;
    QColor link;
};

QPalette paletteOf(const PaletteColours& colours) {
    QPalette palette(colours.text, colours.button, colours.button.lighter(130), colours.button.darker(150),
                     colours.mid, colours.text, Qt::white, colours.base, colours.window);
    palette.setColor(QPalette::AlternateBase, colours.alternateBase);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link.darker(120));
    palette.setColor(QPalette::ToolTipBase, colours.base);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::PlaceholderText, withOpacity(colours.text, 0.5F));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, withOpacity(colours.text, 0.4F));
    }
    return palette;
}

bool isDark(const QColor& background) { return background.lightnessF() < 0.5F; }

}  // namespace

ThemePalette ThemePalette::solarizedLight() {
    return {
        .windowBackground = QColor(0xEE, 0xE8, 0xD5),
        .cardBackground = QColor(0xFD, 0xF6, 0xE3),
        .separator = withOpacity(QColor(0x93, 0xA1, 0xA1), 0.5F),
        .primaryText = QColor(0x07, 0x36, 0x42),
        .accent = QColor(0x26, 0x8B, 0xD2),
        .income = QColor(0x5F, 0x6F, 0x00),
        .expense = QColor(0xB8, 0x28, 0x1F),
        .isCustom = true,
    };
}

ThemePalette ThemePalette::solarizedDark() {
    return {
        .windowBackground = QColor(0x00, 0x2B, 0x36),
        .cardBackground = QColor(0x07, 0x36, 0x42),
        .separator = withOpacity(QColor(0x58, 0x6E, 0x75), 0.6F),
        .primaryText = QColor(0x93, 0xA1, 0xA1),
        .accent = QColor(0x26, 0x8B, 0xD2),
        .income = QColor(0xA3, 0xB8, 0x1C),
        .expense = QColor(0xF4, 0x7A, 0x70),
        .isCustom = true,
    };
}

ThemePalette ThemePalette::fromQtPalette(const QPalette& palette) {
    const bool dark = isDark(palette.color(QPalette::Window));
    return {
        .windowBackground = palette.color(QPalette::Window),
        .cardBackground = palette.color(QPalette::Base),
        .separator = palette.color(QPalette::Mid),
        .primaryText = palette.color(QPalette::WindowText),
        .accent = palette.color(QPalette::Highlight),
        .income = dark ? QColor(0x5B, 0xC8, 0x6F) : QColor(0x1E, 0x7B, 0x34),
        .expense = dark ? QColor(0xFF, 0x6B, 0x5E) : QColor(0xC0, 0x2B, 0x1F),
        .isCustom = false,
    };
}

// The colours of Qt's Fusion style, which looks the same on every desktop.
QPalette standardLightPalette() {
    return paletteOf({
        .window = QColor(0xEF, 0xEF, 0xEF),
        .base = Qt::white,
        .alternateBase = QColor(0xF7, 0xF7, 0xF7),
        .text = Qt::black,
        .button = QColor(0xEF, 0xEF, 0xEF),
        .mid = QColor(0xB8, 0xB8, 0xB8),
        .highlight = QColor(0x30, 0x8C, 0xC6),
        .highlightedText = Qt::white,
        .link = QColor(0x00, 0x00, 0xFF),
    });
}

// Fusion's dark variant.
QPalette standardDarkPalette() {
    return paletteOf({
        .window = QColor(0x35, 0x35, 0x35),
        .base = QColor(0x2A, 0x2A, 0x2A),
        .alternateBase = QColor(0x42, 0x42, 0x42),
        .text = Qt::white,
        .button = QColor(0x35, 0x35, 0x35),
        .mid = QColor(0x5A, 0x5A, 0x5A),
        .highlight = QColor(0x2A, 0x82, 0xDA),
        .highlightedText = Qt::white,
        .link = QColor(0x5A, 0xAA, 0xF0),
    });
}

QPalette qtPaletteOf(const ThemePalette& colours) {
    return paletteOf({
        .window = colours.windowBackground,
        .base = colours.cardBackground,
        .alternateBase = colours.windowBackground,
        .text = colours.primaryText,
        .button = colours.cardBackground,
        .mid = colours.separator,
        .highlight = colours.accent,
        .highlightedText = colours.cardBackground,
        .link = colours.accent,
    });
}

ThemePalette themePalette(AppTheme theme, const QPalette& systemPalette) {
    switch (theme) {
        case AppTheme::system: return ThemePalette::fromQtPalette(systemPalette);
        case AppTheme::light: return ThemePalette::fromQtPalette(standardLightPalette());
        case AppTheme::dark: return ThemePalette::fromQtPalette(standardDarkPalette());
        case AppTheme::solarizedLight: return ThemePalette::solarizedLight();
        case AppTheme::solarizedDark: return ThemePalette::solarizedDark();
    }
    return ThemePalette::fromQtPalette(systemPalette);
}

}  // namespace vantello::app
