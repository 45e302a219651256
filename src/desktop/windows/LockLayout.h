#pragma once

#include <QLayout>
#include <QRect>
#include <QSize>

#include <vector>

/// The window edges that a widget keeps its distance to.
enum Lock { LockLeft = 1, LockTop = 2, LockRight = 4, LockBottom = 8 };
using Locks = int;

constexpr Locks LT = LockLeft | LockTop;
constexpr Locks TR = LockTop | LockRight;
constexpr Locks LTR = LockLeft | LockTop | LockRight;
constexpr Locks LB = LockLeft | LockBottom;
constexpr Locks LTB = LockLeft | LockTop | LockBottom;
constexpr Locks RB = LockRight | LockBottom;
constexpr Locks LTRB = LockLeft | LockTop | LockRight | LockBottom;

/// Puts widgets where a design of fixed size has them, and lets them follow the edges that they are
/// locked to when the area becomes larger or smaller. Locked to two opposite edges, a widget
/// stretches.
class LockLayout : public QLayout {
    Q_OBJECT

public:
    /// The size, in points, at which every widget has its design place.
    LockLayout(QWidget *parent, QSize design);
    ~LockLayout() override;

    void Place(QWidget *widget, const QRect &place, Locks locks);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    QSize sizeHint() const override { return design_; }
    QSize minimumSize() const override { return {}; }
    void setGeometry(const QRect &area) override;

private:
    struct Item {
        QLayoutItem *item;
        QRect place;
        Locks locks;
    };

    QSize design_;
    std::vector<Item> items_;
};
