#include "core/App.h"

using namespace Qt::StringLiterals;

namespace {

/// Protects against casual inspection only: every copy of the program contains the same key.
QByteArray FixedKey() {
    return "rk7WPNdTLqhvM4"_ba;
}

} // namespace

App::App(Desktop &desktop, const UserLocale &locale)
    : desktop_(desktop), locale_(locale), kvoDB_(std::make_unique<SQLiteDatabase>()) {}

SQLiteDatabase &App::NewDatabase() {
    kvoDB_ = std::make_unique<SQLiteDatabase>();
    return *kvoDB_;
}

FolderItem App::DefaultDatabaseFile() const {
    return desktop_.ApplicationData().Child(u"Brevant"_s).Child(u"Zolmark.sdb"_s);
}

void App::UseFile(SQLiteDatabase &database, const FolderItem &file) {
    database.SetDatabaseFile(file);
    database.SetEncryptionKey(FixedKey());
}

FolderItem App::Resources() const {
    return desktop_.ExecutableFile().Parent().Parent().Child(u"Resources"_s);
}

bool App::DBLoad() {
    SQLiteDatabase &database = NewDatabase();
    const FolderItem file = DefaultDatabaseFile();
    if (!file.Exists()) {
        return false;
    }
    UseFile(database, file);
    return true;
}

bool App::DBLoad1() {
    const std::optional<FolderItem> file = desktop_.GetOpenFolderItem();
    if (!file || !file->Exists()) {
        return false;
    }
    NewDatabase().SetDatabaseFile(*file);
    return true;
}

void App::Connect() {
    if (!kvoDB().Connect()) {
        desktop_.MsgBox(u"DB Connection Error: "_s + kvoDB().ErrorMessage());
    }
}

bool App::ReportError() const {
    if (!kvoDB().Error()) {
        return false;
    }
    desktop_.MsgBox(u"DB Error: "_s + kvoDB().ErrorMessage());
    return true;
}
