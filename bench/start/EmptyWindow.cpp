#include "PaintWatch.h"

#define SQLITE_HAS_CODEC 1
#include <QApplication>
#include <QWidget>
#include <sqlite3.h>

#include <cstring>
#include <span>

/// Opens the file of the first argument with the key of the second, runs the statements of the
/// others, and shows an empty window.
int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    sqlite3 *env = nullptr;
    sqlite3_open_v2(argv[1], &env, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_key(env, argv[2], static_cast<int>(std::strlen(argv[2])));
    sqlite3_exec(env, "PRAGMA cipher_compatibility = 3", nullptr, nullptr, nullptr);
    sqlite3_exec(env, "PRAGMA cache_size = -65536", nullptr, nullptr, nullptr);
    for (const char *statement : std::span(argv, static_cast<size_t>(argc)).subspan(3)) {
        if (sqlite3_exec(env, statement, nullptr, nullptr, nullptr) != SQLITE_OK) {
            return 1;
        }
    }
    QWidget window;
    window.setObjectName(QStringLiteral("EmptyWindow"));
    new PaintWatch(window.objectName(), &application);
    window.show();
    const int result = QApplication::exec();
    sqlite3_close_v2(env);
    return result;
}
