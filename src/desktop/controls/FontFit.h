#pragma once

#include <QFont>
#include <QObject>

#include <functional>

class QWidget;

/// Gives the widget the font, made smaller by one pixel at a time until its texts fit, but never so
/// small that nobody can read it.
void ShrinkFont(QWidget &widget, QFont font, const std::function<bool()> &fits);

/// Lets the font give way, and not the word, where a given text would not fit its given place: all
/// that stands on the surface gets the largest font that shows the captions, the buttons, the rows
/// of pop-up menus and the lines of fields and lists whole. It follows the font of the desktop.
///
/// What the user types or books does not count, nor does a text that has a size of its own.
class FontFit : public QObject {
    Q_OBJECT

public:
    /// Fits the surface, which is the content of a window, whenever it comes up. The surface owns
    /// this object.
    explicit FontFit(QWidget &surface);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Fit();

    QWidget &surface_;
};
