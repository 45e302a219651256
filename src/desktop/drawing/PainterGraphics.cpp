#include "desktop/drawing/PainterGraphics.h"

#include <QPainter>
#include <QPixmapCache>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Returns a null pixmap if the file does not exist. Each file is read once.
QPixmap Load(const QString &path) {
    QPixmap pixmap;
    if (!QPixmapCache::find(path, &pixmap)) {
        pixmap = QPixmap(path);
        QPixmapCache::insert(path, pixmap);
    }
    return pixmap;
}

QString HighResolutionFile(const QString &path) {
    return path.chopped(4) + u"@2x.png"_s;
}

} // namespace

PainterGraphics::PainterGraphics(QPainter &painter, const QRectF &area)
    : painter_(painter), area_(area) {
    painter_.save();
    painter_.translate(area_.topLeft());
}

PainterGraphics::~PainterGraphics() {
    painter_.restore();
}

void PainterGraphics::DrawLine(double x1, double y1, double x2, double y2) {
    if (x1 == x2 || y1 == y2) {
        // A filled rectangle covers whole points at any scale of the screen.
        const QRectF line = QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
        painter_.fillRect(line.adjusted(0, 0, 1, 1), color_);
        return;
    }
    painter_.setPen(QPen(color_, 1));
    painter_.drawLine(QLineF(x1, y1, x2, y2));
}

void PainterGraphics::DrawRect(double left, double top, double width, double height) {
    const double right = std::min(left + width, area_.width() - 1);
    const double bottom = std::min(top + height, area_.height() - 1);
    DrawLine(left, top, right, top);
    DrawLine(left, bottom, right, bottom);
    DrawLine(left, top, left, bottom);
    DrawLine(right, top, right, bottom);
}

void PainterGraphics::FillRect(double left, double top, double width, double height) {
    painter_.fillRect(QRectF(left, top, width, height), color_);
}

void PainterGraphics::DrawPicture(const FolderItem &file, double x, double y) {
    const bool isHighResolution = painter_.deviceTransform().m11() > 1;
    QPixmap pixmap = isHighResolution ? Load(HighResolutionFile(file.Path())) : QPixmap();
    if (pixmap.isNull()) {
        pixmap = Load(file.Path());
    }
    if (!pixmap.isNull()) {
        painter_.setRenderHint(QPainter::SmoothPixmapTransform);
        painter_.drawPixmap(QPointF(x, y), pixmap);
    }
}
