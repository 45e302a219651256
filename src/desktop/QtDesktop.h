#pragma once

#include "platform/outside/Desktop.h"

class QDialog;
class QUrl;

/// The user's real desktop.
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

    /// From now on no message and no dialog opens: each is answered as if the user had closed it.
    void SuppressDialogs() { showsDialogs_ = false; }

private:
    /// Whether the user accepts what the dialog asks.
    bool Exec(QDialog &dialog) const;
    /// Starts the desktop's program for it, which goes on when this program ends. If it can't be
    /// started a message shows the name, unless that is empty.
    void Open(const QUrl &address, const QString &name);

    bool showsDialogs_ = true;
};
