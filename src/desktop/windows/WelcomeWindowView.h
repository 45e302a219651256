#pragma once

#include "desktop/windows/Sheet.h"

#include <QMainWindow>

class MenuItem;
class PagePanelView;
class TLXCanvasButton;
class UserLocale;
class WelcomeWindow;

/// The welcome window on the desktop: pages on the left, three large buttons on the right.
class WelcomeWindowView : public QMainWindow {
    Q_OBJECT

public:
    WelcomeWindowView(WelcomeWindow &window, MenuItem &menuBar, const UserLocale &locale);

protected:
    /// The desktop may get another font.
    bool event(QEvent *event) override;

private:
    struct Text {
        QString name;
        QString text;
        int top;
    };
    struct Choice {
        int top;
        Text title;
        Text description;
    };

    Sheet *NewPage(const QString &name);
    QWidget *Greeting();
    QWidget *CompanyPage();
    QWidget *CashBookPage(const UserLocale &locale);
    void AddOpeningBalance(Sheet &page, const UserLocale &locale);
    void AddChoices();
    /// Gives what of it the keys press.
    QWidget *AddChoice(TLXCanvasButton &canvas, const Choice &choice);

    WelcomeWindow &window_;
    Sheet *sheet_;
    PagePanelView *pages_;
};
