#pragma once

#include "platform/outside/Desktop.h"
#include "support/DrawingRecorder.h"

#include <QStringList>
#include <QTemporaryDir>

/// A desktop for tests: records the messages, returns preset results of dialogs, and has its own
/// clock and folders. A message that the test does not take is a failure.
class FakeDesktop : public Desktop {
public:
    FakeDesktop() = default;
    Q_DISABLE_COPY_MOVE(FakeDesktop)
    ~FakeDesktop() override { EXPECT_EQ(TakeMessages(), QString()); }

    /// The current time. It does not advance; a test may set it.
    Date now = Date(QDateTime(QDate(2026, 3, 15), QTime(12, 0)));
    std::optional<FolderItem> fileToOpen;
    std::optional<int> menuChoice;
    std::optional<FolderItem> fileToSave;
    /// The recorded drawing steps of the print jobs; without a value the print dialog is cancelled.
    std::optional<QStringList> printout;
    /// The database file passed to the print dialog, which the print job must not overwrite.
    std::optional<FolderItem> protectedFile;
    /// Everything that was opened: "about", documents to print, suggested file names, paths,
    /// addresses.
    QStringList opened;

    Date Now() const override { return now; }
    FolderItem ApplicationData() const override { return FolderItem(Path("data")); }
    FolderItem DesktopFolder() const override { return FolderItem(Path("desk")); }
    void MsgBox(const QString &message) override { messages_.append(message); }
    FolderItem ExecutableFile() const override { return FolderItem(Path("bin/zolmark")); }
    std::optional<FolderItem> GetOpenFolderItem() override { return fileToOpen; }
    std::optional<FolderItem> ShowModal(const SaveAsDialog &dialog) override {
        opened.append(dialog.suggestedFileName);
        return fileToSave;
    }
    std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString &document,
                      const std::optional<FolderItem> &databaseFile) override {
        protectedFile = databaseFile;
        opened.append(document);
        return printout ? std::make_unique<DrawingRecorder>(*printout) : nullptr;
    }
    std::optional<int> PopUp(const MenuItem & /*base*/) override { return menuChoice; }
    void ShowAboutPanel() override { opened.append("about"); }
    void ShowURL(const QString &address) override { opened.append(address); }
    void Launch(const FolderItem &file) override { opened.append(file.Path()); }

    /// Returns the messages since the last call, separated by vertical bars.
    QString TakeMessages() { return std::exchange(messages_, {}).join(u'|'); }
    QString Path(const QString &name) const { return folder_.filePath(name); }

private:
    QStringList messages_;
    QTemporaryDir folder_;
};
