#include "desktop/windows/LockLayout.h"

#include "desktop/controls/Letters.h"

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
    return Grown(QRect({}, design_), Growth(*parentWidget())).size();
}

void LockLayout::setGeometry(const QRect &area) {
    QLayout::setGeometry(area);
    const double growth = Growth(*parentWidget());
    const QSize more = area.size() - sizeHint();
    for (const Item &each : items_) {
        const QRect place = Grown(each.place, growth);
        const auto [left, width] =
            Follow(place.left(), place.width(), more.width(), each.locks.testFlag(Qt::LeftEdge),
                   each.locks.testFlag(Qt::RightEdge));
        const auto [top, height] =
            Follow(place.top(), place.height(), more.height(), each.locks.testFlag(Qt::TopEdge),
                   each.locks.testFlag(Qt::BottomEdge));
        // Past the item, which would keep the widget above its minimum size and so out of its
        // place.
        each.item->widget()->setGeometry(left, top, width, height);
        QFont font = each.font;
        if (each.fontSize > 0) {
            font.setPixelSize(Grown(each.fontSize, growth));
        }
        FitText(*each.item->widget(), font);
    }
}
