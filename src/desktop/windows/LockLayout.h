#pragma once

#include <QFont>
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
/// stretches. With a large font on the area the whole design grows; what a widget always says is
/// fitted to its place.
class LockLayout : public QLayout {
    Q_OBJECT

public:
    /// The size, in points, at which every widget has its design place, unless the font is large.
    LockLayout(QWidget *parent, QSize design);
    ~LockLayout() override;

    void Place(QWidget *widget, const QRect &place, Qt::Edges locks);
    /// Gives a placed widget a font of its own, in a size in points of the design; 0 is the size of
    /// the desktop's font. A size in the font itself counts for nothing: every font has one.
    void SetFont(const QWidget &widget, const QFont &font, int size);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override { return {}; }
    void setGeometry(const QRect &area) override;

private:
    struct Item {
        QLayoutItem *item;
        QRect place;
        Qt::Edges locks;
        QFont font;
        int fontSize = 0;
    };

    QSize design_;
    std::vector<Item> items_;
};
