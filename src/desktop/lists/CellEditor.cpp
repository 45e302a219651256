#include "desktop/lists/CellEditor.h"

#include "desktop/fields/Fields.h"
#include "desktop/fields/Focus.h"
#include "desktop/fields/HintView.h"
#include "platform/lists/Listbox.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

bool MovesSelection(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

} // namespace

CellEditor::CellEditor(Listbox &list, QWidget *parent)
    : QLineEdit(parent), list_(list), hint_(new HintView(*this)) {
    setObjectName(u"CellEditor"_s);
    setAccessibleName(list.Heading(list.EditedColumn()));
    setFrame(false);
    setTextMargins(1, 0, 1, 0);
    setMaxLength(std::numeric_limits<int>::max());
    setText(list.EditText());
    selectAll();
    AcceptOneLine(*this);
    // Not textChanged: a line edit may alter characters of the text that it is given.
    connect(this, &QLineEdit::textEdited, this, &CellEditor::TextEdited);
    QCoreApplication::instance()->installEventFilter(this);
}

void CellEditor::TextEdited(const QString &text) {
    list_.SetEditText(text);
    QString hint;
    Q_EMIT list_.HintRequested(list_.EditedColumn(), text, hint);
    hint_->SetText(hint);
    setAccessibleDescription(hint);
}

bool CellEditor::event(QEvent *event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Tab) {
        Q_EMIT list_.CellKeyDown(list_.EditedRow(), list_.EditedColumn(), u'\t');
        return true;
    }
    return QLineEdit::event(event);
}

bool CellEditor::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && watched != this &&
        static_cast<QWidget *>(watched)->window() == window()) {
        list_.EndEdit();
    }
    return QLineEdit::eventFilter(watched, event);
}

void CellEditor::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        list_.EndEdit();
        break;
    case Qt::Key_Escape:
        list_.CancelEdit();
        break;
    default:
        QLineEdit::keyPressEvent(event);
        // An ignored Delete would reach the list and remove a record.
        if (!MovesSelection(event->key())) {
            event->accept();
        }
    }
}

void CellEditor::focusOutEvent(QFocusEvent *event) {
    QLineEdit::focusOutEvent(event);
    if (MovesToOtherControl(*event)) {
        hint_->hide();
        list_.EndEdit();
    }
}
