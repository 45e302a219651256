#pragma once

#include "core/database/SQLiteDatabase.h"
#include "platform/outside/Desktop.h"
#include "platform/values/UserLocale.h"

#include <memory>

/// The application object: it owns the one open database, and gives the rooms the desktop and the
/// user's locale. It knows no window.
class App {
public:
    App(Desktop &desktop, const UserLocale &locale);

    Desktop &GetDesktop() const { return desktop_; }
    const UserLocale &Locale() const { return locale_; }
    /// The one database in use. A load or create step puts another object in its place.
    SQLiteDatabase &kvoDB() const { return *kvoDB_; }
    /// Puts a new database without file and key in the place of the one in use.
    SQLiteDatabase &NewDatabase();

    /// Zolmark.sdb in the folder Brevant of the user's application data.
    FolderItem DefaultDatabaseFile() const;
    /// Gives a database a file and the key of every book.
    static void UseFile(SQLiteDatabase &database, const FolderItem &file);
    /// The folder of the pictures and the manual: Resources beside the program's own folder.
    FolderItem Resources() const;

    /// Opens the manual in the user's viewer.
    void LaunchManual() const { desktop_.Launch(Resources().Child(QStringLiteral("Zolmark.pdf"))); }

    /// Prepares the default file with its key; false when there is no such file. Opens nothing.
    [[nodiscard]] bool DBLoad();
    /// Lets the user choose a file, without a key; false when there is none, and the database in
    /// use stays. Opens nothing.
    [[nodiscard]] bool DBLoad1();
    /// Opens what a load step has prepared; tells the user when that fails.
    void Connect();

    /// Shows "DB Error: " and the database's message if its last operation failed; true if it did.
    bool ReportError() const;

private:
    Desktop &desktop_;
    UserLocale locale_;
    std::unique_ptr<SQLiteDatabase> kvoDB_;
};
