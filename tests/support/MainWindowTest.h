#pragma once

#include "desktop/windows/MainWindowView.h"
#include "support/TestEnvironment.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>

/// Presses the keys of a text: \t, \r and \x1b are Tab, Return and Escape, a name in braces is any
/// key, as in
/// "{Ctrl+N}". The target is a widget, or a window, which passes the keys to its focus widget or to
/// its pop-up.
template <class Target>
void Type(Target *target, const QString &text) {
    static const QRegularExpression token("\\{([^}]+)\\}|[^{]");
    for (const QRegularExpressionMatch &match : token.globalMatch(text)) {
        if (match.hasCaptured(1)) {
            const QKeyCombination key = QKeySequence(match.captured(1))[0];
            QTest::keyClick(target, key.key(), key.keyboardModifiers());
        } else {
            QTest::keyClick(target, match.captured()[0].toLatin1());
        }
    }
}

/// The real main window on a test database, operated by keys and clicks. A test adds records and
/// calls Open().
class MainWindowTest : public EnvironmentTest {
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
    void Type(const QString &text) { ::Type(view.windowHandle(), text); }
    static QPoint Centre(const QTableView &list, int row, int column) {
        return list.visualRect(list.model()->index(row, column)).center();
    }
    void Click(const QWidget *widget, QPoint position) {
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&view, position));
    }
    void Click(const QTableView &list, int row, int column) {
        Click(list.viewport(), Centre(list, row, column));
    }
    void DoubleClick(const QTableView &list, int row, int column) {
        Click(list, row, column);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Centre(list, row, column));
    }

    void Choose(const QString &name, int row) {
        auto &box = Find<QComboBox>(name);
        Click(&box, box.rect().center() + QPoint(box.width() / 2 - 8, 0));
        QApplication::processEvents(); // Otherwise the mouse release could be taken for the end of
                                       // a drag.
        const QAbstractItemView &rows = *box.view();
        const QPoint position = rows.visualRect(box.model()->index(row, 0)).center();
        QTest::mouseMove(rows.viewport(), position);
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, position);
    }

    MainWindowView view{window, env.app.Locale(), env.app.Resources()};
};
