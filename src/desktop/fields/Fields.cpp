#include "desktop/fields/Fields.h"

#include "desktop/fields/Announcement.h"
#include "desktop/fields/ControlBinding.h"
#include "platform/controls/Label.h"
#include "platform/controls/PushButton.h"
#include "platform/controls/TextField.h"
#include "platform/lists/PopupMenu.h"
#include "platform/values/Text.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QValidator>

using namespace Qt::StringLiterals;

namespace {

class OneLineValidator : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString &text, int &cursor) const override {
        cursor = static_cast<int>(OneLine(text.left(cursor)).size());
        text = OneLine(text);
        return Acceptable;
    }
};

class AmountEdit : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override {
        const bool isDecimal = event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma;
        if (isDecimal && event->modifiers() == Qt::KeypadModifier) {
            insert(u","_s);
        } else {
            QLineEdit::keyPressEvent(event);
        }
    }
};

class PopupMenuBox : public QComboBox {
public:
    using QComboBox::QComboBox;

    void showPopup() override {
        FitToLongestRow(*view());
        QComboBox::showPopup();
    }
};

QLineEdit *BindTextField(TextField &field, QLineEdit *edit) {
    AcceptOneLine(*edit);
    const auto show = [edit, &field] {
        if (edit->text() != field.Text()) {
            // The line edit may show less than the field contains, which must not change it.
            const QSignalBlocker blocker(edit);
            edit->setText(field.Text());
            ShowBeginning(*edit);
        }
    };
    show();
    BindControl(field, *edit);
    QObject::connect(&field, &TextField::Updated, edit, show);
    QObject::connect(edit, &QLineEdit::textChanged, &field, &TextField::SetText);
    return edit;
}

} // namespace

QLabel *CreateLabel(Label &label, QWidget *parent, Qt::Alignment alignment) {
    auto *view = new QLabel(parent);
    view->setTextFormat(Qt::PlainText);
    view->setAlignment(alignment | Qt::AlignVCenter);
    BindControl(label, *view);
    const auto show = [view, &label] {
        view->setText(label.Text());
        view->setAccessibleName(label.AccessibleName());
    };
    show();
    QObject::connect(&label, &Label::Updated, view, show);
    return view;
}

QLineEdit *CreateTextField(TextField &field, QWidget *parent) {
    return BindTextField(field, new QLineEdit(parent));
}

QLineEdit *CreateAmountField(TextField &field, QWidget *parent) {
    return BindTextField(field, new AmountEdit(parent));
}

QPushButton *CreatePushButton(PushButton &button, QWidget *parent) {
    auto *view = new QPushButton(button.Caption(), parent);
    // Return presses whichever button has the focus.
    view->setAutoDefault(true);
    view->setDefault(button.Kind() == PushButton::Role::Default);
    BindControl(button, *view);
    QObject::connect(view, &QPushButton::clicked, &button, &PushButton::Press);
    return view;
}

QComboBox *CreatePopupMenu(PopupMenu &menu, QWidget *parent) {
    auto *view = new PopupMenuBox(parent);
    view->setModel(menu.Rows());
    view->setFocusPolicy(Qt::StrongFocus);
    BindControl(menu, *view);
    QObject::connect(&menu, &PopupMenu::Updated, view,
                     [view, &menu] { view->setCurrentIndex(menu.ListIndex()); });
    QObject::connect(view, &QComboBox::activated, &menu, &PopupMenu::SetListIndex);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // Screen readers do not get the selected row of a combo box from older versions of Qt.
    const auto speak = [view](const QString &row) {
        view->setAccessibleDescription(row);
        if (view->hasFocus()) {
            Announce(*view->window(), row);
        }
    };
    speak(view->currentText());
    QObject::connect(view, &QComboBox::currentTextChanged, view, speak);
#endif
    return view;
}

void AcceptOneLine(QLineEdit &edit) {
    edit.setValidator(new OneLineValidator(&edit));
}

void ShowBeginning(QLineEdit &edit) {
    if (!edit.hasFocus()) {
        edit.setCursorPosition(0);
    }
}

void FitToLongestRow(QAbstractItemView &list) {
    const int bar = list.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
    list.setMinimumWidth(list.sizeHintForColumn(0) + bar + 2 * list.frameWidth());
}
