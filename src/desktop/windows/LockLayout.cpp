#include "desktop/windows/LockLayout.h"

#include <QWidget>

#include <algorithm>

namespace {

/// Start and length of one direction after the area grew by `growth`.
std::pair<int, int> Follow(int start, int length, int growth, bool lockStart, bool lockEnd) {
    if (lockStart && lockEnd) {
        return {start, std::max(0, length + growth)};
    }
    return {lockEnd ? start + growth : start, length};
}

} // namespace

LockLayout::LockLayout(QWidget *parent, QSize design) : QLayout(parent), design_(design) {}

LockLayout::~LockLayout() {
    for (const Item &each : items_) {
        delete each.item;
    }
}

void LockLayout::Place(QWidget *widget, const QRect &place, Qt::Edges locks) {
    addWidget(widget);
    items_.back().place = place;
    items_.back().locks = locks;
    widget->setGeometry(place);
}

void LockLayout::addItem(QLayoutItem *item) {
    items_.push_back({item, {}, LT});
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

void LockLayout::setGeometry(const QRect &area) {
    QLayout::setGeometry(area);
    const QSize growth = area.size() - design_;
    for (const Item &each : items_) {
        const QRect &place = each.place;
        const auto [left, width] =
            Follow(place.left(), place.width(), growth.width(), each.locks.testFlag(Qt::LeftEdge),
                   each.locks.testFlag(Qt::RightEdge));
        const auto [top, height] =
            Follow(place.top(), place.height(), growth.height(), each.locks.testFlag(Qt::TopEdge),
                   each.locks.testFlag(Qt::BottomEdge));
        // Past the item, which would keep the widget above its minimum size and so out of its
        // place.
        each.item->widget()->setGeometry(left, top, width, height);
    }
}
