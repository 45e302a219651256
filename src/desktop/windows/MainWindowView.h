#pragma once

#include <QMainWindow>

class FolderItem;
class MainWindow;
class UserLocale;

/// Shows the main window: menu bar, tool bar, pages.
class MainWindowView : public QMainWindow {
    Q_OBJECT

public:
    /// The icons of the tool bar are in the folder.
    MainWindowView(MainWindow &window, const UserLocale &locale, const FolderItem &icons);

protected:
    /// Follows a change of the desktop's font.
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    /// Sets the desktop's font on the pages and enlarges the window to their size.
    void FitToFont();

    MainWindow &window_;
    QWidget *pages_;
};
