#include "desktop/look/LockLayout.h"

#include "desktop/look/FontScaling.h"
#include "desktop/look/TextFitting.h"

#include <QWidget>

#include <algorithm>

namespace {

/// Returns position and length in one direction after the area grew by `added` points.
std::pair<int, int> FollowLocks(int position, int length, int added, bool lockStart, bool lockEnd) {
    if (lockStart && lockEnd) {
        return {position, std::max(0, length + added)};
    }
    return {lockEnd ? position + added : position, length};
}

} // namespace

LockLayout::LockLayout(QWidget *parent, QSize design) : QLayout(parent), design_(design) {}

LockLayout::~LockLayout() {
    for (const Item &each : items_) {
        delete each.item;
    }
}

void LockLayout::AddAt(QWidget *widget, const QRect &rect, Qt::Edges locks) {
    addWidget(widget);
    items_.back().rect = rect;
    items_.back().locks = locks;
    widget->setGeometry(rect);
}

void LockLayout::SetFont(const QWidget &widget, const QFont &font, int size) {
    const auto item = std::find_if(items_.begin(), items_.end(), [&widget](const Item &each) {
        return each.item->widget() == &widget;
    });
    item->font = font;
    item->fontSize = size;
}

void LockLayout::addItem(QLayoutItem *item) {
    items_.push_back({item, {}, LT, {}});
}

int LockLayout::count() const {
    return static_cast<int>(items_.size());
}

QLayoutItem *LockLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<size_t>(index)].item : nullptr;
}

QLayoutItem *LockLayout::takeAt(int index) {
    QLayoutItem *item = itemAt(index);
    if (item != nullptr) {
        items_.erase(items_.begin() + index);
    }
    return item;
}

QSize LockLayout::sizeHint() const {
    return Scaled(QRect({}, design_), ScaleFactor(*parentWidget())).size();
}

void LockLayout::setGeometry(const QRect &area) {
    QLayout::setGeometry(area);
    const double factor = ScaleFactor(*parentWidget());
    const QSize added = area.size() - sizeHint();
    for (const Item &each : items_) {
        const QRect rect = Scaled(each.rect, factor);
        const auto [left, width] =
            FollowLocks(rect.left(), rect.width(), added.width(), each.locks.testFlag(Qt::LeftEdge),
                        each.locks.testFlag(Qt::RightEdge));
        const auto [top, height] =
            FollowLocks(rect.top(), rect.height(), added.height(), each.locks.testFlag(Qt::TopEdge),
                        each.locks.testFlag(Qt::BottomEdge));
        // Not through the item, which would enforce the minimum size of the widget.
        each.item->widget()->setGeometry(left, top, width, height);
        QFont font = each.font;
        if (each.fontSize > 0) {
            font.setPixelSize(Scaled(each.fontSize, factor));
        }
        FitText(*each.item->widget(), font);
    }
}
