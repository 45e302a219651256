#include "shell/qt/GivenColours.h"

QPalette GivenColours(QPalette palette, QRgb background) {
    palette.setColor(QPalette::Window, QColor(background));
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}
