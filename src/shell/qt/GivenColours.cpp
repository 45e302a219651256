#include "shell/qt/GivenColours.h"

#include <QWidget>

QPalette GivenColours(QPalette palette, QRgb background) {
    palette.setColor(QPalette::Window, QColor(background));
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

void SetTextColour(QWidget &label, QRgb colour) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, QColor(colour));
    label.setPalette(palette);
}
