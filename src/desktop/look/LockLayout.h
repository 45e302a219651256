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

/// Lays widgets out at the rectangles of a design of fixed size. When the area is larger or smaller
/// than the design, a widget keeps its distance to the edges that it is locked to; locked to two
/// opposite edges, it stretches. With a large font on the area the whole design is scaled. Fixed
/// texts are fitted to their widgets.
class LockLayout : public QLayout {
    Q_OBJECT

public:
    /// The size of the design in points.
    LockLayout(QWidget *parent, QSize design);
    ~LockLayout() override;

    void AddAt(QWidget *widget, const QRect &rect, Qt::Edges locks);
    /// Sets the font of an added widget. The size is in points of the design; 0 is the size of the
    /// desktop's font. A size in the font itself is ignored.
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
        QRect rect;
        Qt::Edges locks;
        QFont font;
        int fontSize = 0;
    };

    QSize design_;
    std::vector<Item> items_;
};
