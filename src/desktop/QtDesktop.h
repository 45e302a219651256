#pragma once

#include "platform/outside/Desktop.h"

class QDialog;
class QUrl;

/// The desktop through Qt: dialogs, standard folders, printing.
class QtDesktop : public Desktop {
public:
    Date Now() const override;
    FolderItem ApplicationData() const override;
    FolderItem DesktopFolder() const override;
    FolderItem ExecutableFile() const override;
    void MsgBox(const QString &message) override;
    std::optional<FolderItem> GetOpenFolderItem() override;
    std::optional<FolderItem> ShowModal(const SaveAsDialog &dialog) override;
    std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString &document,
                      const std::optional<FolderItem> &databaseFile) override;
    std::optional<int> PopUp(const MenuItem &base) override;
    void ShowAboutPanel() override;
    void Launch(const FolderItem &file) override;
    void ShowURL(const QString &address) override;

    /// From now on no dialog opens; each returns as if the user had cancelled it.
    void SuppressDialogs() { showsDialogs_ = false; }

private:
    /// Shows a modal dialog; returns whether the user accepted it.
    bool Exec(QDialog &dialog) const;
    /// Starts the program that the desktop assigns to the address, detached from this one. On
    /// failure a message shows the name, unless that is empty.
    void Open(const QUrl &address, const QString &name);

    bool showsDialogs_ = true;
};
