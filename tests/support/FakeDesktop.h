#pragma once

#include "platform/Desktop.h"
#include "platform/SaveAsDialog.h"
#include "support/DrawingRecorder.h"

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
    /// The answer to the dialog for a new file, and the last one that was shown.
    std::optional<FolderItem> fileToSave;
    std::optional<SaveAsDialog> saveDialog;
    /// What was printed; nothing while the user cancels the dialog.
    std::optional<QStringList> paper;
    /// What was shown or opened: "about", the names of files, and addresses.
    QStringList opened;

    Date Now() const override { return now; }
    FolderItem ApplicationData() const override { return FolderItem(Path(QStringLiteral("data"))); }
    FolderItem DesktopFolder() const override { return FolderItem(Path(QStringLiteral("desk"))); }
    void MsgBox(const QString &message) override { messages.append(message); }
    FolderItem ExecutableFile() const override {
        return FolderItem(Path(QStringLiteral("bin/zolmark")));
    }
    std::optional<FolderItem> GetOpenFolderItem() override { return fileToOpen; }
    std::optional<FolderItem> ShowModal(const SaveAsDialog &dialog) override {
        saveDialog = dialog;
        return fileToSave;
    }
    std::unique_ptr<PrinterGraphics> OpenPrinterDialog(const QString & /*document*/) override {
        return paper ? std::make_unique<DrawingRecorder>(*paper) : nullptr;
    }
    std::optional<int> PopUp(const MenuItem & /*base*/) override { return menuChoice; }
    void ShowAboutPanel() override { opened.append(QStringLiteral("about")); }
    void ShowURL(const QString &address) override { opened.append(address); }
    void Launch(const FolderItem &file) override { opened.append(file.Path()); }

    /// A path in a folder that goes with this desktop.
    QString Path(const QString &name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
};
