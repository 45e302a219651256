#pragma once

#include "support/GoogleTest.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// Returns the titles and texts of all visible widgets, or only of those in the given window.
inline QStringList VisibleTexts(const QWidget *window = nullptr) {
    QStringList texts;
    for (const QWidget *each : QApplication::allWidgets()) {
        if (each->isVisible() && (!window || each->window() == window)) {
            texts << (each->isWindow() ? each->windowTitle() : each->property("text").toString());
        }
    }
    return texts;
}

/// Runs an action that opens `expected` modal windows, one after the other, presses a key in each
/// to close it, and returns their texts. A window that does not open or does not close is a
/// failure.
inline QStringList Press(Qt::Key key, const std::function<void()> &action, int expected = 1) {
    QStringList texts;
    QPointer<QWidget> pressed;
    QTimer timer; // The action returns only after the windows have closed.
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (window != nullptr && window == pressed) {
            ADD_FAILURE() << "The window stays open: " << testing::PrintToString(VisibleTexts());
            window->close();
        } else if (window != nullptr) {
            --expected;
            pressed = window;
            EXPECT_TRUE(window->parentWidget());
            texts += VisibleTexts(window);
            QTest::keyClick(window, key);
        }
    });
    timer.start(1);
    action();
    EXPECT_EQ(expected, 0) << testing::PrintToString(VisibleTexts());
    return texts;
}

/// Runs the event loop and returns its exit code. It is a failure if the loop does not exit within
/// 5 seconds.
inline int RunEventLoop() {
    QTimer timeout;
    QObject::connect(&timeout, &QTimer::timeout, qApp, [] {
        ADD_FAILURE() << "The event loop does not exit: " << testing::PrintToString(VisibleTexts());
        QApplication::exit(-1);
    });
    timeout.start(std::chrono::seconds(5));
    return QApplication::exec();
}
