#pragma once

#include "support/GoogleTest.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// The titles and the texts of the windows that show, for a failure to tell too.
inline QStringList TextsOnTheScreen(const QWidget *only = nullptr) {
    QStringList texts;
    for (const QWidget *each : QApplication::allWidgets()) {
        if (each->isVisible() && (!only || each->window() == only)) {
            texts << (each->isWindow() ? each->windowTitle() : each->property("text").toString());
        }
    }
    return texts;
}

/// Does what opens so many modal windows, one after the other, presses a key in each to close it, and gives their
/// texts. A window that does not come, or does not go, fails the test at once.
inline QStringList Press(Qt::Key key, const std::function<void()> &action, int expected = 1) {
    QStringList texts;
    QPointer<QWidget> pressed;
    QTimer look; // A modal window blocks the click that opens it.
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (window != nullptr && window == pressed) {
            ADD_FAILURE() << "It stays: " << testing::PrintToString(TextsOnTheScreen());
            window->close();
        } else if (window != nullptr) {
            --expected;
            pressed = window;
            EXPECT_TRUE(window->parentWidget());
            texts += TextsOnTheScreen(window);
            QTest::keyClick(window, key);
        }
    });
    look.start(1);
    action();
    EXPECT_EQ(expected, 0) << testing::PrintToString(TextsOnTheScreen());
    return texts;
}

/// Runs the event loop until something ends it, and gives what ended it.
inline int RunToTheEnd() {
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, qApp, [] {
        ADD_FAILURE() << "No end: " << testing::PrintToString(TextsOnTheScreen());
        QApplication::exit(-1);
    });
    guard.start(std::chrono::seconds(5));
    return QApplication::exec();
}
