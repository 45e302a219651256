#include "shell/qt/QtDesktop.h"

#include "platform/MenuItem.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Line ends of any kind, as the toolkit shows them.
QString WithLineFeeds(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

} // namespace

Date QtDesktop::Now() const {
    return Date(QDateTime::currentDateTime());
}

FolderItem QtDesktop::ApplicationData() const {
    return FolderItem(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

FolderItem QtDesktop::ExecutableFile() const {
    return FolderItem(QApplication::applicationFilePath());
}

void QtDesktop::MsgBox(const QString &message) {
    QMessageBox box(QMessageBox::NoIcon, QApplication::applicationName(), WithLineFeeds(message),
                    QMessageBox::Ok, QApplication::activeWindow());
    // Texts of the database may hold what looks like markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::optional<FolderItem> QtDesktop::GetOpenFolderItem() {
    const QString path = QFileDialog::getOpenFileName(QApplication::activeWindow());
    return path.isEmpty() ? std::nullopt : std::optional(FolderItem(path));
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
    QMessageBox::about(QApplication::activeWindow(),
                       u"Über %1"_s.arg(QApplication::applicationName()),
                       u"<h3>%1</h3>Version %2"_s.arg(QApplication::applicationName(),
                                                      QApplication::applicationVersion()));
}

void QtDesktop::Launch(const FolderItem &file) {
    // What the desktop can't open it tells by itself.
    static_cast<void>(QDesktopServices::openUrl(QUrl::fromLocalFile(file.Path())));
}
