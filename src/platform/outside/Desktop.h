#pragma once

#include "platform/outside/FolderItem.h"
#include "platform/values/Date.h"

#include <QString>

#include <memory>
#include <optional>

class MenuItem;
class PrinterGraphics;
struct SaveAsDialog;

/// What the program asks of the world outside its windows. Everything modal goes through here.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;
    virtual ~Desktop() = default;

    /// The present moment.
    virtual Date Now() const = 0;
    /// The user's folder for application data.
    virtual FolderItem ApplicationData() const = 0;
    /// The user's desktop folder.
    virtual FolderItem DesktopFolder() const = 0;
    /// The file of the running program.
    virtual FolderItem ExecutableFile() const = 0;

    /// A message with one button; returns when the user has closed it.
    virtual void MsgBox(const QString &message) = 0;
    /// Asks for a file to open, of any type; nothing when the user cancels.
    [[nodiscard]] virtual std::optional<FolderItem> GetOpenFolderItem() = 0;
    /// Asks for the name of a new file; nothing when the user cancels.
    [[nodiscard]] virtual std::optional<FolderItem> ShowModal(const SaveAsDialog &dialog) = 0;
    /// Asks for a printer, for a document of this name; nothing when the user cancels. The open
    /// book is refused as the file to print into, when the job ends.
    [[nodiscard]] virtual std::unique_ptr<PrinterGraphics>
    OpenPrinterDialog(const QString &document, const std::optional<FolderItem> &databaseFile) = 0;
    /// Shows the entries under the item as a menu at the mouse; the position of the chosen one,
    /// nothing when the user closes the menu.
    [[nodiscard]] virtual std::optional<int> PopUp(const MenuItem &base) = 0;
    /// Name and version of the program, in a small window.
    virtual void ShowAboutPanel() = 0;

    /// Opens a file in the program that the system assigns to it, and does not wait for it. Shows a
    /// message if no program can be started; none for a missing file.
    virtual void Launch(const FolderItem &file) = 0;
    /// Opens an address in the user's browser. Shows a message if no program can be started.
    virtual void ShowURL(const QString &address) = 0;
};
