#include "desktop/QtDesktop.h"

#include "desktop/drawing/PrintJob.h"
#include "platform/menus/MenuItem.h"
#include "platform/values/Text.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Returns the parent of a dialog: the active window, or while another program is active the first
/// visible one.
QWidget *Owner() {
    if (QWidget *active = QApplication::activeWindow()) {
        return active;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto shown = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->windowType() == Qt::Window;
    });
    return shown == windows.end() ? nullptr : *shown;
}

/// Returns a standard folder of the user, the home folder if it does not exist.
FolderItem FolderOf(QStandardPaths::StandardLocation location) {
    const FolderItem folder(QStandardPaths::writableLocation(location));
    return folder.Exists() ? folder : FolderItem(QDir::homePath());
}

} // namespace

Date QtDesktop::Now() const {
    return Date(QDateTime::currentDateTime());
}

FolderItem QtDesktop::ApplicationData() const {
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // A relative path in the environment is ignored: it would depend on the working directory.
    return FolderItem(QDir::isAbsolutePath(path) ? path : QDir::home().filePath(u".local/share"_s));
}

FolderItem QtDesktop::DesktopFolder() const {
    return FolderOf(QStandardPaths::DesktopLocation);
}

FolderItem QtDesktop::ExecutableFile() const {
    return FolderItem(QApplication::applicationFilePath());
}

void QtDesktop::MsgBox(const QString &message) {
    QMessageBox box(QMessageBox::NoIcon, QApplication::applicationName(),
                    ReplaceLineEndings(message, u"\n"_s), QMessageBox::Ok, Owner());
    box.setWindowModality(Qt::WindowModal);
    // A text from the database may look like HTML.
    box.setTextFormat(Qt::PlainText);
    Exec(box);
}

std::optional<FolderItem> QtDesktop::GetOpenFolderItem() {
    QFileDialog box(Owner());
    box.setFileMode(QFileDialog::ExistingFile);
    return Exec(box) ? std::optional(FolderItem(box.selectedFiles().constFirst())) : std::nullopt;
}

std::optional<FolderItem> QtDesktop::ShowModal(const SaveAsDialog &dialog) {
    QFileDialog box(Owner(), dialog.title, dialog.initialDirectory.Path(),
                    u"%1 (*%2)"_s.arg(dialog.filter.name, dialog.filter.extensions));
    box.setAcceptMode(QFileDialog::AcceptSave);
    box.setLabelText(QFileDialog::FileName, dialog.promptText);
    box.setDefaultSuffix(dialog.filter.extensions);
    box.selectFile(dialog.suggestedFileName);
    return Exec(box) ? std::optional(FolderItem(box.selectedFiles().constFirst())) : std::nullopt;
}

std::unique_ptr<PrinterGraphics>
QtDesktop::OpenPrinterDialog(const QString &document,
                             const std::optional<FolderItem> &databaseFile) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(document);
    if (printer->outputFormat() == QPrinter::PdfFormat) {
        // No printer is installed. Only on some platforms the dialog suggests a file name.
        printer->setOutputFileName(
            FolderOf(QStandardPaths::DocumentsLocation).Child(document + u".pdf"_s).Path());
    }
    QPrintDialog dialog(printer.get(), Owner());
    if (!Exec(dialog)) {
        return nullptr;
    }
    return std::make_unique<PrintJob>(std::move(printer), databaseFile,
                                      [this](const QString &failure) { MsgBox(failure); });
}

std::optional<int> QtDesktop::PopUp(const MenuItem &base) {
    QMenu menu;
    for (int item = 0; item < base.Count(); ++item) {
        menu.addAction(base.Item(item).Text());
    }
    const qsizetype chosen = menu.actions().indexOf(menu.exec(QCursor::pos()));
    return chosen < 0 ? std::nullopt : std::optional(static_cast<int>(chosen));
}

void QtDesktop::ShowAboutPanel() {
    QMessageBox box(QMessageBox::NoIcon, u"Über %1"_s.arg(QApplication::applicationName()),
                    u"<h2>%1</h2>Version %2"_s.arg(QApplication::applicationName(),
                                                   QApplication::applicationVersion()),
                    QMessageBox::Ok, Owner());
    box.setIconPixmap(QApplication::windowIcon().pixmap(96));
    Exec(box);
}

bool QtDesktop::Exec(QDialog &dialog) const {
    return showsDialogs_ && dialog.exec() == QDialog::Accepted;
}

void QtDesktop::Launch(const FolderItem &file) {
    Open(QUrl::fromLocalFile(file.Path()), file.Exists() ? file.Path() : QString());
}

void QtDesktop::ShowURL(const QString &address) {
    Open(QUrl(address), address);
}

void QtDesktop::Open(const QUrl &address, const QString &name) {
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    const bool isStarted =
        opener.isEmpty() ? QDesktopServices::openUrl(address)
                         : QProcess::startDetached(opener, {address.toString(QUrl::FullyEncoded)});
    if (!isStarted && !name.isEmpty()) {
        MsgBox(
            u"%1 kann nicht geöffnet werden: Es ist kein Programm dafür eingerichtet."_s.arg(name));
    }
}
