#include "desktop/look/LightPalette.h"

#include <QApplication>
#include <QWidget>

namespace {

struct RoleColour {
    QPalette::ColorRole role;
    QRgb colour;
};

constexpr RoleColour colours[] = {
    {QPalette::WindowText, 0xff000000},    {QPalette::Base, 0xffffffff},
    {QPalette::Text, 0xff000000},          {QPalette::PlaceholderText, 0xff666666},
    {QPalette::AlternateBase, 0xffd2edf5}, {QPalette::Button, 0xffececec},
    {QPalette::ButtonText, 0xff000000},    {QPalette::BrightText, 0xffffffff},
    {QPalette::Highlight, 0xff1f6aa5},     {QPalette::HighlightedText, 0xffffffff},
    {QPalette::ToolTipBase, 0xffffffdc},   {QPalette::ToolTipText, 0xff000000},
    {QPalette::Link, 0xff0b5394},          {QPalette::LinkVisited, 0xff551a8b},
    {QPalette::Light, 0xffffffff},         {QPalette::Midlight, 0xfff6f6f6},
    {QPalette::Mid, 0xffb8b8b8},           {QPalette::Dark, 0xff6e6e6e},
    {QPalette::Shadow, 0xff404040}};

constexpr RoleColour disabledColours[] = {{QPalette::WindowText, 0xff666666},
                                          {QPalette::Text, 0xff666666},
                                          {QPalette::ButtonText, 0xff666666},
                                          {QPalette::Base, 0xfff0f0f0},
                                          {QPalette::Highlight, 0xff6e6e6e}};

} // namespace

QPalette LightPalette(QRgb background) {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(background));
    for (const RoleColour &each : colours) {
        palette.setColor(each.role, QColor(each.colour));
    }
    for (const RoleColour &each : disabledColours) {
        palette.setColor(QPalette::Disabled, each.role, QColor(each.colour));
    }
    return palette;
}

void UseLightPalette(QWidget &window, QRgb background) {
    const QPalette palette = LightPalette(background);
    QApplication::setPalette(palette);
    window.setPalette(palette);
}

void DarkenFrames(QWidget &pages) {
    QPalette palette;
    // Styles derive the colour of frames from the background.
    palette.setColor(QPalette::Window, QColor(0xffb0b0b0));
    pages.setPalette(palette);
}

void SetTextColour(QWidget &label, QRgb colour) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(colour));
    label.setPalette(palette);
}
