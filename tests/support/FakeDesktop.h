#pragma once

#include "platform/Desktop.h"

#include <QStringList>
#include <QTemporaryDir>

/// A desktop for tests: it records the messages, holds the answers of dialogs, and has a clock and
/// folders of its own.
class FakeDesktop : public Desktop {
public:
    /// The clock stands still at noon of this day, until a test sets it.
    Date now = Date(QDateTime(QDate(2026, 3, 15), QTime(12, 0)));
    QStringList messages;
    std::optional<FolderItem> fileToOpen;
    std::optional<int> menuChoice;
    /// What was shown or opened: "about", and the names of files.
    QStringList opened;

    Date Now() const override { return now; }
    FolderItem ApplicationData() const override { return FolderItem(Path(QStringLiteral("data"))); }
    void MsgBox(const QString &message) override { messages.append(message); }
    FolderItem ExecutableFile() const override {
        return FolderItem(Path(QStringLiteral("bin/zolmark")));
    }
    std::optional<FolderItem> GetOpenFolderItem() override { return fileToOpen; }
    std::optional<int> PopUp(const MenuItem & /*base*/) override { return menuChoice; }
    void ShowAboutPanel() override { opened.append(QStringLiteral("about")); }
    void Launch(const FolderItem &file) override { opened.append(file.Path()); }

    /// A path in a folder that goes with this desktop.
    QString Path(const QString &name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
};
