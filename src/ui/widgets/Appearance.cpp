#include "widgets/Appearance.h"

#include "widgets/FocusFrameStyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace Appearance {

namespace {

// What the platform gave, taken before the first change so that System can
// bring it back.
struct SystemLook
{
    QString styleName;
    bool taken = false;
};

SystemLook &systemLook()
{
    static SystemLook look;
    return look;
}

Settings::Appearance &inForce()
{
    static Settings::Appearance appearance = Settings::Appearance::System;
    return appearance;
}

// The colours of one look: the active ones, and the disabled ones that differ.
struct Colors
{
    QColor window, windowText, base, alternateBase, text, button, buttonText, brightText;
    QColor light, midlight, mid, dark, shadow;
    QColor highlight, highlightedText, link, linkVisited;
    QColor toolTipBase, toolTipText, placeholderText;
    QColor disabledText, disabledHighlight, disabledHighlightedText;
};

// Neutral greys with a hint of blue, and blue for selection. Text, links,
// placeholders, tool tips and selected text read at 4.5:1 or more on their
// grounds. Fusion marks the keyboard focus in the selection's blue darkened:
// in the dark, a light blue (with dark text on it) keeps that mark plain to
// see. Fusion outlines fields and check boxes in the window's colour
// darkened, so in the dark fields and tables are lighter than the window,
// or the outline would vanish.
const Colors lightColors{
    QColor(0xf2, 0xf3, 0xf5), QColor(0x1d, 0x20, 0x24), QColor(0xff, 0xff, 0xff),
    QColor(0xf5, 0xf6, 0xf8), QColor(0x1d, 0x20, 0x24), QColor(0xe9, 0xeb, 0xee),
    QColor(0x1d, 0x20, 0x24), QColor(0xff, 0xff, 0xff),
    QColor(0xff, 0xff, 0xff), QColor(0xf4, 0xf5, 0xf7), QColor(0xb9, 0xbd, 0xc3),
    QColor(0x9c, 0xa1, 0xa8), QColor(0x5c, 0x61, 0x68),
    QColor(0x2a, 0x68, 0xbd), QColor(0xff, 0xff, 0xff), QColor(0x1a, 0x5f, 0xb4),
    QColor(0x6f, 0x3d, 0xa8),
    QColor(0xfd, 0xfb, 0xe9), QColor(0x1d, 0x20, 0x24), QColor(0x63, 0x69, 0x71),
    QColor(0x86, 0x8b, 0x93), QColor(0xc9, 0xcd, 0xd3), QColor(0x4c, 0x51, 0x58),
};

const Colors darkColors{
    QColor(0x23, 0x25, 0x29), QColor(0xe6, 0xe8, 0xeb), QColor(0x2d, 0x30, 0x36),
    QColor(0x33, 0x36, 0x3c), QColor(0xe6, 0xe8, 0xeb), QColor(0x3a, 0x3d, 0x44),
    QColor(0xe6, 0xe8, 0xeb), QColor(0xff, 0xff, 0xff),
    QColor(0x50, 0x54, 0x5c), QColor(0x44, 0x47, 0x4e), QColor(0x2b, 0x2d, 0x32),
    QColor(0x16, 0x17, 0x1a), QColor(0x0a, 0x0b, 0x0c),
    QColor(0x6a, 0xa8, 0xf5), QColor(0x0b, 0x0c, 0x0d), QColor(0x8a, 0xb4, 0xf8),
    QColor(0xc5, 0x9b, 0xf5),
    QColor(0x3a, 0x3d, 0x44), QColor(0xe6, 0xe8, 0xeb), QColor(0xa3, 0xa8, 0xb0),
    QColor(0x74, 0x79, 0x80), QColor(0x45, 0x48, 0x4e), QColor(0xa4, 0xa8, 0xaf),
};

QPalette paletteOf(const Colors &c)
{
    QPalette palette;
    const auto setAll = [&palette](QPalette::ColorRole role, const QColor &color) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setColor(group, role, color);
    };
    setAll(QPalette::Window, c.window);
    setAll(QPalette::WindowText, c.windowText);
    setAll(QPalette::Base, c.base);
    setAll(QPalette::AlternateBase, c.alternateBase);
    setAll(QPalette::Text, c.text);
    setAll(QPalette::Button, c.button);
    setAll(QPalette::ButtonText, c.buttonText);
    setAll(QPalette::BrightText, c.brightText);
    setAll(QPalette::Light, c.light);
    setAll(QPalette::Midlight, c.midlight);
    setAll(QPalette::Mid, c.mid);
    setAll(QPalette::Dark, c.dark);
    setAll(QPalette::Shadow, c.shadow);
    setAll(QPalette::Highlight, c.highlight);
    setAll(QPalette::HighlightedText, c.highlightedText);
    setAll(QPalette::Link, c.link);
    setAll(QPalette::LinkVisited, c.linkVisited);
    setAll(QPalette::ToolTipBase, c.toolTipBase);
    setAll(QPalette::ToolTipText, c.toolTipText);
    setAll(QPalette::PlaceholderText, c.placeholderText);
    setAll(QPalette::NoRole, QColor(Qt::transparent));

    // Disabled controls keep their grounds and fade their text; a disabled
    // selection goes grey.
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, c.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Base, c.window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, c.disabledHighlight);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, c.disabledHighlightedText);
    return palette;
}

void takeSystemLook()
{
    SystemLook &look = systemLook();
    if (look.taken)
        return;
    look.styleName = QApplication::style()->name();
    look.taken = true;
}

} // namespace

QPalette palette(Settings::Appearance appearance)
{
    switch (appearance) {
    case Settings::Appearance::Light:
        return paletteOf(lightColors);
    case Settings::Appearance::Dark:
        return paletteOf(darkColors);
    case Settings::Appearance::System:
        break;
    }
    // Not set, every role comes from the style and the desktop.
    return QPalette();
}

void apply(Settings::Appearance appearance)
{
    if (appearance == inForce())
        return;
    takeSystemLook();
    // The style first: setting one puts its own colours in force.
    if (appearance == Settings::Appearance::System)
        QApplication::setStyle(systemLook().styleName);
    else
        QApplication::setStyle(new FocusFrameStyle);
    QApplication::setPalette(palette(appearance));
    inForce() = appearance;
}

Settings::Appearance current()
{
    return inForce();
}

} // namespace Appearance
