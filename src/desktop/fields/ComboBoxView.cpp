#include "desktop/fields/ComboBoxView.h"

#include "desktop/fields/ControlBinding.h"
#include "desktop/fields/Fields.h"
#include "desktop/look/TextFitting.h"
#include "desktop/look/ToolTipText.h"
#include "platform/lists/ComboBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolTip>
#include <QWindow>

namespace {

/// Sends a mouse press to the widget at its position.
void ForwardPress(const QMouseEvent &press) {
    QWidget *target = QApplication::widgetAt(press.globalPosition().toPoint());
    if (target == nullptr) {
        return;
    }
    for (QWidget *each = target; each != nullptr; each = each->parentWidget()) {
        if (each->isEnabled() && (each->focusPolicy() & Qt::ClickFocus)) {
            each->setFocus(Qt::MouseFocusReason);
            break;
        }
    }
    QWindow *window = target->window()->windowHandle();
    const QPointF position = window->mapFromGlobal(press.globalPosition());
    QMouseEvent event(press.type(), position, position, press.globalPosition(), press.button(),
                      press.buttons(), press.modifiers(), press.pointingDevice());
    QCoreApplication::sendEvent(window, &event);
}

} // namespace

ComboBoxView::ComboBoxView(ComboBox &combo, QWidget *parent) : QComboBox(parent), combo_(combo) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setModel(combo.Rows());
    BindControl(combo, *this);
    SetUpCompleter();
    ShowCombo();
    connect(&combo, &ComboBox::Updated, this, &ComboBoxView::ShowCombo);
    connect(this, &QComboBox::activated, &combo, &ComboBox::SetListIndex);
    connect(lineEdit(), &QLineEdit::textEdited, &combo, &ComboBox::SetText);
}

void ComboBoxView::showPopup() {
    FitToLongestRow(*view());
    QComboBox::showPopup();
}

void ComboBoxView::ShowCombo() {
    if (currentIndex() != combo_.ListIndex()) {
        setCurrentIndex(combo_.ListIndex());
    }
    if (currentText() != combo_.Text()) {
        setEditText(combo_.Text());
    }
    FitRow();
    ShowBeginning(*lineEdit());
}

void ComboBoxView::FitRow() {
    QLineEdit &edit = *lineEdit();
    edit.setFont(FittedFont(font(), {currentIndex() < 0 ? QString() : currentText(),
                                     edit.rect().adjusted(2, 0, -2, 0)}));
}

bool ComboBoxView::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip) {
        return QComboBox::event(event);
    }
    const QLineEdit &edit = *lineEdit();
    const bool isCut = edit.fontMetrics().horizontalAdvance(edit.text()) > edit.width();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       isCut ? ToolTipText(edit.text()) : QString(), this);
    return true;
}

void ComboBoxView::resizeEvent(QResizeEvent *event) {
    QComboBox::resizeEvent(event);
    FitRow();
}

void ComboBoxView::SetUpCompleter() {
    // The built-in completer of QComboBox would replace the typed text.
    auto *completer = new QCompleter(combo_.Rows(), this);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(completer);
    completer->popup()->installEventFilter(this);
    // HandleOutsidePress sends a click outside the list on; not every platform replays it.
    completer->popup()->setAttribute(Qt::WA_NoMouseReplay);
    AcceptOneLine(*lineEdit());
}

void ComboBoxView::changeEvent(QEvent *event) {
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange && completer() != nullptr) {
        completer()->popup()->setFont(font());
        FitRow();
    }
}

QString ComboBoxView::Completion() const {
    const QAbstractItemView &popup = *completer()->popup();
    if (popup.currentIndex().isValid()) {
        return popup.currentIndex().data().toString();
    }
    const QAbstractItemModel &rows = *completer()->completionModel();
    for (int row = 0; row < rows.rowCount(); ++row) {
        QString text = rows.index(row, 0).data().toString();
        if (text.startsWith(combo_.Text(), Qt::CaseInsensitive)) {
            return text;
        }
    }
    return rows.index(0, 0).data().toString();
}

bool ComboBoxView::eventFilter(QObject *watched, QEvent *event) {
    if (watched == completer()->popup()) {
        if (event->type() == QEvent::KeyPress) {
            return HandleCompletionKey(static_cast<QKeyEvent *>(event));
        }
        if (event->type() == QEvent::Show) {
            FitToLongestRow(*completer()->popup());
        }
        if (event->type() == QEvent::MouseButtonPress) {
            return HandleOutsidePress(*static_cast<QMouseEvent *>(event));
        }
    }
    return QComboBox::eventFilter(watched, event);
}

bool ComboBoxView::HandleOutsidePress(const QMouseEvent &press) {
    QAbstractItemView &list = *completer()->popup();
    const bool isOutside = !list.rect().contains(press.position().toPoint());
    if (isOutside) {
        list.hide();
        ForwardPress(press);
    }
    return isOutside;
}

bool ComboBoxView::HandleCompletionKey(QKeyEvent *event) {
    const bool isTab = event->key() == Qt::Key_Tab;
    if (!isTab && event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        return false;
    }
    const QString completion = Completion();
    const bool completes = !completion.isEmpty() && completion != combo_.Text();
    completer()->popup()->hide();
    if (completes) {
        combo_.SetListIndex(combo_.FindText(completion));
    }
    // A Return that completes does not press the default button.
    if (isTab || !completes) {
        QCoreApplication::sendEvent(this, event);
    }
    return true;
}
