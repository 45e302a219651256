#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

/// Does what opens modal windows, presses a key in each of them to close it, and gives the texts
/// that they showed. What is still open after a thousand looks, some ten seconds, is closed as a
/// failure.
inline QStringList Press(Qt::Key key, const std::function<void()> &action) {
    QStringList texts;
    QTimer look; // A modal window blocks the click that opens it.
    int looks = 0;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        QWidget *window = QApplication::activeModalWidget();
        if (window != nullptr && ++looks > 1000) {
            ADD_FAILURE() << "cannot close " << window->metaObject()->className();
            window->close();
        } else if (window != nullptr) {
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
