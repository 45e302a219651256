#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

/// Does what opens modal windows, and hands each of them to the answer, which is to close it. What
/// is still open after a thousand looks, some ten seconds, is closed as a failure.
template <typename Action, typename Answer>
void AnswerModalWindows(const Action &action, const Answer &answer) {
    QTimer look; // A modal window blocks the click that opens it.
    int looks = 0;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (window != nullptr && ++looks > 1000) {
            ADD_FAILURE() << "cannot close " << window->metaObject()->className();
            window->close();
        } else if (window != nullptr) {
            // Not from the timer itself, which would be still while a box lies over the window.
            QTimer::singleShot(0, window, [&answer, window] { answer(*window); });
        }
    });
    look.start(10);
    action();
}
