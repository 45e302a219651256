#pragma once

#include <QLayout>
#include <QRect>
#include <QSize>

#include <vector>

/// The window edges that a widget keeps its distance to.
constexpr Qt::Edges LT = Qt::LeftEdge | Qt::TopEdge;
constexpr Qt::Edges TR = Qt::TopEdge | Qt::RightEdge;
constexpr Qt::Edges LTR = LT | Qt::RightEdge;
constexpr Qt::Edges LB = Qt::LeftEdge | Qt::BottomEdge;
constexpr Qt::Edges LTB = LT | Qt::BottomEdge;
constexpr Qt::Edges RB = Qt::RightEdge | Qt::BottomEdge;
constexpr Qt::Edges LTRB = LTR | Qt::BottomEdge;

/// Puts widgets where a design of fixed size has them, and lets them follow the edges that they are
/// locked to when the area becomes larger or smaller. Locked to two opposite edges, a widget
/// stretches.
class LockLayout : public QLayout {
    Q_OBJECT

public:
    /// The size, in points, at which every widget has its design place.
    LockLayout(QWidget *parent, QSize design);
    ~LockLayout() override;

    void Place(QWidget *widget, const QRect &place, Qt::Edges locks);

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
        Qt::Edges locks;
    };

    QSize design_;
    std::vector<Item> items_;
};
