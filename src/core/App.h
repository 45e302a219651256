#pragma once

#include "core/database/SQLiteDatabase.h"
#include "platform/outside/Desktop.h"
#include "platform/values/UserLocale.h"

#include <memory>

/// The application object: owns the one open database and provides the desktop and the user's
/// locale. Independent of all windows.
class App {
public:
    App(Desktop &desktop, const UserLocale &locale);

    Desktop &GetDesktop() const { return desktop_; }
    const UserLocale &Locale() const { return locale_; }
    /// Returns the database in use. The reference is invalid after NewDatabase and the load steps.
    SQLiteDatabase &kvoDB() const { return *kvoDB_; }
    /// Replaces the database in use by a new one without file and key.
    SQLiteDatabase &NewDatabase();

    /// Returns Zolmark.sdb in the folder Brevant of the user's application data folder.
    FolderItem DefaultDatabaseFile() const;
    /// Sets the file, and the encryption key that all database files share.
    static void UseFile(SQLiteDatabase &database, const FolderItem &file);
    /// Returns the folder of the pictures and the manual: Resources, a sibling of the program's
    /// folder.
    FolderItem Resources() const;

    /// Opens the manual in the user's viewer.
    void LaunchManual() const { desktop_.Launch(Resources().Child(QStringLiteral("Zolmark.pdf"))); }

    /// Replaces the database by one with the default file and its key, and does not open it.
    /// Returns false if there is no such file.
    [[nodiscard]] bool DBLoad();
    /// Replaces the database by one with a file that the user chooses, without a key, and does not
    /// open it. Returns false and keeps the database in use if no existing file was chosen.
    [[nodiscard]] bool DBLoad1();
    /// Opens the database that a load step has prepared; shows a message on failure.
    void Connect();

    /// Shows "DB Error: " and the database's message if its last operation failed. Returns whether
    /// it failed.
    bool ReportError() const;

private:
    Desktop &desktop_;
    UserLocale locale_;
    std::unique_ptr<SQLiteDatabase> kvoDB_;
};
