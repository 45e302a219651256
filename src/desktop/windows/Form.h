#pragma once

#include "desktop/look/LockLayout.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class PushButton;
class QLabel;

/// A widget whose children are laid out at fixed rectangles, in points from its top left corner. Of
/// the keys that no child handled, Return presses the visible default button, Escape the visible
/// cancel button.
class Form : public QWidget {
    Q_OBJECT

public:
    Form(QSize design, QWidget *parent);

    struct Frame {
        QRgb fill;
        QRgb border;
    };
    /// Fills the form and draws a line of one point around it.
    void SetFrame(Frame frame);

    /// Adds a widget, takes ownership of it, and returns it.
    QWidget *Add(QWidget *widget, const QRect &rect, Qt::Edges locks = LT);
    /// The same, with an accessible name.
    QWidget *AddNamed(const QString &name, QWidget *widget, const QRect &rect,
                      Qt::Edges locks = LT);
    void AddButton(PushButton &button, const QRect &rect, Qt::Edges locks = LT);
    /// Adds a fixed text, vertically centred unless the alignment says otherwise.
    QLabel *AddText(const QString &name, const QString &text, const QRect &rect,
                    Qt::Alignment alignment = Qt::AlignLeft);
    /// Sets the font of a text of this form and returns the text. The size is in points of the
    /// design; 0 is the size of the desktop's font.
    QLabel *SetTextFont(QLabel *text, int size, bool bold = false);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    LockLayout *layout_;
    std::optional<Frame> frame_;
    std::vector<PushButton *> buttons_;
};
