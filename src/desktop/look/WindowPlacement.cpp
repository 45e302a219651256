#include "desktop/look/WindowPlacement.h"

#include "desktop/look/FontScaling.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

/// The title bar and the edges on most desktops; the real size is unknown until the window shows.
constexpr QSize frame{16, 48};

} // namespace

QSize AvailableSize(const QWidget &window) {
    return window.screen()->availableSize() - frame;
}

void UseDesktopFont(QWidget &pages, QSize minimum, QSize bars) {
    pages.setFont(QFont());
    const QSize available = AvailableSize(pages) - bars;
    const double largest = std::max(1.0, std::min(double(available.width()) / minimum.width(),
                                                  double(available.height()) / minimum.height()));
    const double factor = ScaleFactor(pages);
    if (factor > largest) {
        QFont font = pages.font();
        font.setPixelSize(static_cast<int>(FontSizePx(pages) * largest / factor));
        pages.setFont(font);
    }
}

void CenterOnScreen(QWidget &window, QSize size) {
    const QRect available = window.screen()->availableGeometry();
    window.move(available.center() - QRect({}, size + frame).center());
}
