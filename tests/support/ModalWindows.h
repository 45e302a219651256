#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

/// Does what opens modal windows, presses a key in each of them to close it, and gives the texts
/// that they showed.
inline QStringList Press(Qt::Key key, const std::function<void()> &action) {
    QStringList texts;
    QTimer look; // A modal window blocks the click that opens it.
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (QWidget *window = QApplication::activeModalWidget()) {
            EXPECT_TRUE(window->parentWidget());
            texts.append(window->windowTitle());
            for (const QWidget *child : window->findChildren<QWidget *>()) {
                texts.append(child->property("text").toString());
            }
            QTest::keyClick(window, key);
        }
    });
    look.start(10);
    action();
    return texts;
}
