#pragma once

#include "desktop/windows/LockLayout.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class PushButton;
class QLabel;

/// A surface that widgets are laid out on at given places, in points from its top left corner. It
/// takes the keys that no control took: Return presses the default button that shows, Escape the
/// cancel button.
class Sheet : public QWidget {
    Q_OBJECT

public:
    Sheet(QSize design, QWidget *parent);

    struct Frame {
        QRgb fill;
        QRgb border;
    };
    /// Fills the sheet and draws a line of one point around it.
    void SetFrame(Frame frame);

    /// Adds a widget, and gives it back; the sheet owns it.
    QWidget *Add(QWidget *widget, const QRect &place, Qt::Edges locks = LT);
    /// The same with a name of its own, which nobody sees but assistive tools tell.
    QWidget *AddNamed(const QString &name, QWidget *widget, const QRect &place,
                      Qt::Edges locks = LT);
    void AddButton(PushButton &button, const QRect &place, Qt::Edges locks = LT);
    /// Adds a text that never changes; it stands in the middle of its height unless told. It is the
    /// caption of the widget that is made its buddy.
    QLabel *AddText(const QString &name, const QString &text, const QRect &place,
                    Qt::Alignment alignment = Qt::AlignLeft);
    /// Gives one of its texts letters of its own, and gives it back. The size is in points of the
    /// design; 0 is the desktop's.
    QLabel *SetLetters(QLabel *text, int size, bool bold = false);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    LockLayout *layout_;
    std::optional<Frame> frame_;
    std::vector<PushButton *> buttons_;
};
