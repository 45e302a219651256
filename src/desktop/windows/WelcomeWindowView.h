#pragma once

#include "desktop/windows/Form.h"

#include <QMainWindow>

class MenuItem;
class TLXCanvasButton;
class UserLocale;
class WelcomeWindow;

/// Shows the welcome window: pages on the left, three large buttons on the right.
class WelcomeWindowView : public QMainWindow {
    Q_OBJECT

public:
    WelcomeWindowView(WelcomeWindow &window, MenuItem &menuBar, const UserLocale &locale);

protected:
    /// Follows a change of the desktop's font.
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

    static Form *CreatePage(const QString &name, QWidget *parent);
    QWidget *Greeting(QWidget *parent);
    QWidget *CompanyPage(QWidget *parent);
    QWidget *CashBookPage(const UserLocale &locale, QWidget *parent);
    void AddOpeningBalance(Form &page, const UserLocale &locale);
    void AddChoices();
    /// Returns the button that gets the keyboard focus.
    QWidget *AddChoice(TLXCanvasButton &canvas, const Choice &choice);

    WelcomeWindow &window_;
    Form *form_;
};
