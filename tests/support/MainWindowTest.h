#pragma once

#include "shell/qt/MainWindowView.h"
#include "support/BookTest.h"

#include <QApplication>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>

/// Presses the keys of a text, in which \t is the Tab key, \r is Return and \x1b is Escape; to
/// wherever the focus of the window is, or to its pop-up.
inline void Type(const QWidget &window, const QString &text) {
    for (const QChar letter : text) {
        QTest::keyClick(window.windowHandle(), letter.toLatin1());
    }
}

/// Turns the wheel over a widget, by 120 for one notch upwards.
inline void TurnWheel(QWidget &widget, int delta) {
    QWheelEvent event({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

/// The real main window on a book, driven by keys and clicks as by its user. A test fills the book
/// and opens the window.
class MainWindowTest : public BookTest {
protected:
    void Open() {
        window.Event_Open();
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    template <class Widget>
    Widget &Find(const QString &name) {
        return *view.findChild<Widget *>(name);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(view.windowHandle(), key, modifiers);
    }
    void Type(const QString &text) { ::Type(view, text); }
    static QPoint Centre(const QTableView &list, int row, int column) {
        return list.visualRect(list.model()->index(row, column)).center();
    }
    void Click(const QWidget *widget, QPoint place) {
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&view, place));
    }
    void Click(const QTableView &list, int row, int column) {
        Click(list.viewport(), Centre(list, row, column));
    }
    void DoubleClick(const QTableView &list, int row, int column) {
        Click(list, row, column);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Centre(list, row, column));
    }

    MainWindowView view{window, book.app};
};
