#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class PushButton;
class QLabel;

/// The edges of a form that a widget on it keeps its distance to.
constexpr Qt::Edges LT = Qt::LeftEdge | Qt::TopEdge;
constexpr Qt::Edges TR = Qt::TopEdge | Qt::RightEdge;
constexpr Qt::Edges LTR = LT | Qt::RightEdge;
constexpr Qt::Edges LB = Qt::LeftEdge | Qt::BottomEdge;
constexpr Qt::Edges LTB = LT | Qt::BottomEdge;
constexpr Qt::Edges RB = Qt::RightEdge | Qt::BottomEdge;
constexpr Qt::Edges LTRB = LTR | Qt::BottomEdge;

/// A widget whose children are laid out at the rectangles of a design of fixed size, in points from
/// its top left corner. When the form is larger or smaller than the design, a child keeps its
/// distance to the edges that it is locked to; locked to two opposite edges, it stretches. With a
/// large font the whole design is scaled. Fixed texts are fitted to their widgets.
///
/// Of the keys that no child handled, Return presses the visible default button, Escape the visible
/// cancel button.
class Form : public QWidget {
    Q_OBJECT

public:
    Form(QSize design, QWidget *parent) : QWidget(parent), design_(design) {}

    struct Frame {
        QRgb fill;
        QRgb border;
    };
    /// Fills the form and draws a line of one point around it.
    void SetFrame(Frame frame) { frame_ = frame; }

    /// Adds a widget, takes ownership of it, and returns it.
    QWidget *Add(QWidget *widget, const QRect &rect, Qt::Edges locks = LT);
    /// The same, with an accessible name.
    QWidget *AddNamed(const QString &name, QWidget *widget, const QRect &rect,
                      Qt::Edges locks = LT);
    void AddButton(PushButton &button, const QRect &rect, Qt::Edges locks = LT);
    /// Adds a fixed text, vertically centred unless the alignment is vertical too. The size of its
    /// font is in points of the design; 0 is the size of the desktop's font.
    QLabel *AddText(const QString &name, const QString &text, const QRect &rect,
                    Qt::Alignment alignment = Qt::AlignLeft, int fontSize = 0, bool isBold = false);

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Item {
        QWidget *widget;
        QRect rect;
        Qt::Edges locks;
        QFont font = {};
        int fontSize = 0;
    };

    void LayOut();

    QSize design_;
    std::vector<Item> items_;
    std::optional<Frame> frame_;
    std::vector<PushButton *> buttons_;
};
