#include "desktop/windows/Room.h"

#include "desktop/controls/Letters.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

/// The title bar and the edges, as most desktops have them: nobody knows before the window shows.
constexpr QSize frame{16, 48};

} // namespace

QSize Room(const QWidget &window) {
    return window.screen()->availableSize() - frame;
}

void UseDesktopFont(QWidget &pages, QSize least, QSize beside) {
    pages.setFont(QFont());
    const QSize room = Room(pages) - beside;
    const double most = std::max(1.0, std::min(double(room.width()) / least.width(),
                                               double(room.height()) / least.height()));
    const double growth = Growth(pages);
    if (growth > most) {
        QFont font = pages.font();
        font.setPixelSize(static_cast<int>(LetterSize(pages) * most / growth));
        pages.setFont(font);
    }
}

void PutInTheMiddle(QWidget &window, QSize size) {
    const QRect free = window.screen()->availableGeometry();
    window.move(free.center() - QRect({}, size + frame).center());
}
