#pragma once

#include "desktop/windows/MainWindowView.h"
#include "support/TestEnvironment.h"

#include <QRegularExpression>
#include <QTest>
#include <QtWidgets> // The tests of the windows reach for any part of the toolkit.

/// Presses the keys of a text, \t, \r and \x1b for Tab, Return and Escape, and any key by its name, as in "{Ctrl+N}".
/// They go to a widget; or, if a window is given, to wherever its focus is, or to its pop-up.
template <class Target>
void Type(Target *target, const QString &text) {
    static const QRegularExpression each(u"\\{([^}]+)\\}|[^{]"_s);
    for (const QRegularExpressionMatch &key : each.globalMatch(text)) {
        if (key.hasCaptured(1)) {
            const QKeyCombination named = QKeySequence(key.captured(1))[0];
            QTest::keyClick(target, named.key(), named.keyboardModifiers());
        } else {
            QTest::keyClick(target, key.captured()[0].toLatin1());
        }
    }
}

/// The real main window on a book, driven by keys and clicks as by its user. A test fills the book and opens the
/// window.
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
    void Click(const QWidget *widget, QPoint place) {
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&view, place));
    }
    void Click(const QTableView &list, int row, int column) { Click(list.viewport(), Centre(list, row, column)); }
    void DoubleClick(const QTableView &list, int row, int column) {
        Click(list, row, column);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Centre(list, row, column));
    }

    void Choose(const QString &name, int row) {
        auto &box = Find<QComboBox>(name);
        Click(&box, box.rect().center() + QPoint(box.width() / 2 - 8, 0));
        QApplication::processEvents(); // So far the release of the button could belong to a drag.
        const QAbstractItemView &rows = *box.view();
        const QPoint place = rows.visualRect(box.model()->index(row, 0)).center();
        QTest::mouseMove(rows.viewport(), place);
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, place);
    }

    MainWindowView view{window, env.app.Locale(), env.app.Resources()};
};
