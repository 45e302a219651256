#include "shell/qt/QtDesktop.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>

Date QtDesktop::Now() const {
    return Date(QDateTime::currentDateTime());
}

FolderItem QtDesktop::ApplicationData() const {
    return FolderItem(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

void QtDesktop::MsgBox(const QString &message) {
    QMessageBox box(QMessageBox::NoIcon, QApplication::applicationName(), message, QMessageBox::Ok,
                    QApplication::activeWindow());
    // Texts of the database may hold what looks like markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::optional<FolderItem> QtDesktop::GetOpenFolderItem() {
    const QString path = QFileDialog::getOpenFileName(QApplication::activeWindow());
    return path.isEmpty() ? std::nullopt : std::optional(FolderItem(path));
}
